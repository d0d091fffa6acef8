// krm redact: a recording without what identifies a vehicle or a person.
#include "krm/exchange/redact.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <system_error>

#include "cli/byte_source.h"
#include "cli/input.h"
#include "cli/output_file.h"
#include "cli/patterns.h"
#include "cli/subcommands.h"

namespace krm_cli {
namespace {

std::string SecretIn(const std::string& file, const Surroundings& surroundings) {
    ByteSource source(file, surroundings);
    SourceBuffer buffer(source);
    std::istream in(&buffer);
    in.exceptions(std::ios::badbit);
    std::string secret{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    while (!secret.empty() && (secret.back() == '\n' || secret.back() == '\r')) {
        secret.pop_back();
    }
    if (secret.empty()) {
        throw Failure(file + ": holds no secret");
    }
    return secret;
}

}  // namespace

int RunRedact(const RedactOptions& options, const Surroundings& surroundings) {
    CheckStandardInput(options.file, options.secretFile);
    krm::RedactOptions redaction = options.redaction;
    redaction.vin = !options.leavesVins;
    if (!options.secretFile.empty()) {
        redaction.secret = SecretIn(options.secretFile, surroundings);
    }
    krm::Redactor redactor(redaction);
    if (!redactor.Error().empty()) {
        throw Failure(redactor.Error());
    }
    ByteSource source(options.file, surroundings);
    if (!IsRecording(source)) {
        throw Failure(source.Name() +
                      ": is no recording. Only recordings are redacted: in an operation log a value may be spread over "
                      "many lines, a byte each");
    }
    source.KeepForAgain();
    OutputFile output(options.output, {}, options.overwrites, surroundings);
    SourceBuffer buffer(source);
    std::istream in(&buffer);
    in.exceptions(std::ios::badbit);
    const krm::RedactedRecording done = krm::RedactRecording(in, output.Stream(), redactor);
    if (!done) {
        throw Failure(options.output + ": not written: " + done.error);
    }
    output.Complete();
    for (const krm::RecordingFault& fault : done.faults) {
        surroundings.err << Shown(source.Name()) << ':' << fault.line
                         << ": left out: " << Shown((fault.path.empty() ? "" : fault.path + ": ") + fault.text) << '\n';
    }
    if (done.faultCount > done.faults.size()) {
        surroundings.err << Shown(source.Name()) << ": " << done.faultCount - done.faults.size()
                         << " more lines are left out\n";
    }
    surroundings.out << done.messages << (done.messages == 1 ? " message, " : " messages, ") << done.places
                     << (done.places == 1 ? " place" : " places") << " replaced, written to " << Shown(options.output)
                     << std::endl;
    return done.faultCount == 0 ? kDone : kBadParts;
}

}  // namespace krm_cli
