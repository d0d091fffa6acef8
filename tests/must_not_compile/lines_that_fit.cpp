// compiles
#include "krm/framework/commands.h"
#include "tests/must_not_compile/fixture.h"

static_assert(krm::CommandId(krm::CommandFamily::Diagnostic, "GetDTC") == 2);

// Each refused line beside this file is one of these with a single mistake in it.
void Sample::Dump(const krm::RecordLines& line) {
    line("%s.m_ulId=%d", m_ulId);
    line("%s.m_ulId=0x%08X", m_ulId);
    line("%s.m_ulId=%d(%u)", m_ulId, m_ulId);
    line("%s.m_strName=%s", m_strName);
    line("%s.m_dValue=%lf", m_dValue);
    line("%s.m_cPart", m_cPart);
    line("%s.m_cPartList[%d]", m_cPartList);
    line("[%s] m_uchRaw[%d]=%d", m_uchRaw);
    line.ForEach(m_cPartList, [](const auto& partLine, Part& part) {
        partLine("%s.m_cPartList[%d].m_ulId=%d", part.m_ulId);
        partLine("%s.m_cPartList[%d].m_uchRaw[%d]=%d", part.m_uchRaw);
    });
}
