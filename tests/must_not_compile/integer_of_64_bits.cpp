// error: this type has no place in the operation log
#include "tests/must_not_compile/fixture.h"

void Sample::Dump(const krm::RecordLines& line) {
    line("%s.m_llBig=%d", m_llBig);
}
