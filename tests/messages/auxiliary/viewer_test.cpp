#include "krm/messages/auxiliary/viewer.h"

#include <gtest/gtest.h>

#include <string>

#include "krm/fields/auxiliary/viewer.h"
#include "tests/support/fields.h"

namespace {

using krm::test::Described;
using krm::test::Fill;
using krm::test::IsZero;
using krm::test::Seed;

template <class T>
class ViewerMessage : public testing::Test {};
using Messages = testing::Types<CKRMCCreateViewerDataCtrlVdcAdaptDataSnd, CKRMCCreateViewerDataCtrlVdcAdaptDataRcv,
                                CKRMCGetHelpInfoVdcAdptDataSnd, CKRMCGetHelpInfoVdcAdptDataRcv,
                                CKRMCGetPcViewerResourceVdcAdptDataSnd, CKRMCGetPcViewerResourceVdcAdptDataRcv,
                                CKRMCGetHideAllDataVdcAdaptDataSnd, CKRMCGetHideAllDataVdcAdaptDataRcv,
                                CKRMCGetSecurityLevelVdcAdaptDataSnd, CKRMCGetSecurityLevelVdcAdaptDataRcv>;
TYPED_TEST_SUITE(ViewerMessage, Messages);

template <class T>
concept HasDump = requires(T& it) {
    it.ErrWriteOperationLog();
}
|| requires(T& it) {
    it.ER_WriteOperationLogFormat("");
};
static_assert(HasDump<CKRMCBaseUccAdaptData>, "the check would find a dump where there is one");

TYPED_TEST(ViewerMessage, HasNoDump) {
    EXPECT_FALSE(HasDump<TypeParam>);
}

TEST(Viewer, RequestsStartWithTheBasesNumberAtZeroAndKeepItInCopies) {
    CKRMCGetHideAllDataVdcAdaptDataSnd request;
    EXPECT_EQ(request.m_ulVdcSndValue, 0U);
    request.m_ulVdcSndValue = 4294967295U;
    const CKRMCGetHideAllDataVdcAdaptDataSnd copy(request);
    EXPECT_EQ(copy.m_ulVdcSndValue, 4294967295U);
    request.Clear();
    EXPECT_EQ(request.m_ulVdcSndValue, 0U);
}

TEST(Viewer, ResourceTypeIsOneUnlessSet) {
    CKRMCGetPcViewerResourceVdcAdptDataSnd request;
    EXPECT_EQ(request.m_ulResourceType, 1U);
    EXPECT_TRUE(IsZero(request.m_strResourceName));
    EXPECT_TRUE(IsZero(request.m_strLanguage));
    request.m_ulResourceType = 0;
    request.Clear();
    EXPECT_EQ(request.m_ulResourceType, 1U);
}

TEST(Viewer, ACopyOwnsItsResourceMap) {
    CKRMCGetPcViewerResourceVdcAdptDataRcv source;
    source.m_strResourceName = "menu";
    source.m_cResourceMap.SetAt("title", "Freeze frames");
    CKRMCGetPcViewerResourceVdcAdptDataRcv copy(source);
    EXPECT_EQ(Described(copy), Described(source));
    copy.m_cResourceMap.SetAt("title", "changed");
    copy.m_cResourceMap.SetAt("more", "");
    CKRMString title;
    ASSERT_TRUE(source.m_cResourceMap.Lookup("title", title));
    EXPECT_EQ(title.Compare("Freeze frames"), 0);
    EXPECT_EQ(source.m_cResourceMap.GetCount(), 1);
    copy.Clear();
    EXPECT_EQ(copy.m_cResourceMap.GetCount(), 0);
    EXPECT_EQ(source.m_cResourceMap.GetCount(), 1);
}

TEST(Viewer, ACopyOwnsItsHelp) {
    CKRMCGetHelpInfoVdcAdptDataRcv source;
    Seed seed(634);
    Fill(source, seed);
    const std::string before = Described(source);
    CKRMCGetHelpInfoVdcAdptDataRcv copy;
    copy = source;
    EXPECT_EQ(Described(copy), before);
    copy.Data[1].m_strHelpInfo = "changed";
    copy.Data.RemoveAt(0);
    EXPECT_EQ(Described(source), before);
}

}  // namespace
