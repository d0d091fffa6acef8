// error: TheLineMustHaveOneIndexInBracketsPerLevelAndList
// or, by a compiler that makes the lambda consteval: call to a consteval constructor 'LineFormat'
#include "tests/must_not_compile/fixture.h"

void Sample::Dump(const krm::RecordLines& line) {
    line.ForEach(m_cPartList,
                 [](const auto& partLine, Part& part) { partLine("%s.m_cPartList.m_ulId=%d", part.m_ulId); });
}
