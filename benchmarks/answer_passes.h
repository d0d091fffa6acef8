// What is done with the answer wherever it is measured.
#ifndef KRM_BENCHMARKS_ANSWER_PASSES_H_
#define KRM_BENCHMARKS_ANSWER_PASSES_H_

#include <memory>
#include <vector>

#include "benchmarks/answer.h"
#include "benchmarks/counting_sink.h"
#include "benchmarks/pass.h"

namespace krm::bench {

/// Two answers of as many lines.
template <class Message>
std::vector<Message> TwoAnswers() {
    std::vector<Message> answers(2);
    Fill(answers[0], 0);
    Fill(answers[1], 7);
    return answers;
}

/// Construction of a copy, and its destruction: whoever copies an answer destroys the copy some day.
template <class Message>
Pass CopyAnswer() {
    const auto answers = std::make_shared<std::vector<Message>>(TwoAnswers<Message>());
    Pass pass;
    pass.operations = static_cast<double>(answers->size());
    pass.run = [answers] {
        for (const Message& answer : *answers) {
            const Message copy(answer);
            Keep(copy);
        }
    };
    return pass;
}

/// Both answers into the operation log, whose sink counts.
inline Pass DumpAnswer() {
    const auto answers = std::make_shared<std::vector<Answer>>(TwoAnswers<Answer>());
    Pass pass;
    pass.operations = static_cast<double>(answers->size());
    const auto write = [answers] {
        for (Answer& answer : *answers) {
            answer.ErrWriteOperationLog();
        }
    };
    pass.lines = static_cast<double>(LinesOf(write)) / pass.operations;
    pass.run = [write, sink = std::make_shared<CountingSink>()] {
        const ScopedLogSink scope(*sink);
        write();
    };
    return pass;
}

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_ANSWER_PASSES_H_
