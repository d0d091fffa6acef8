// Records: value semantics, prefix, and the lines of every kind of field.
#include "krm/framework/record.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "krm/framework/dump.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/trouble_codes.h"
#include "tests/framework/log_results.h"
#include "tests/support/log_capture.h"

namespace {

using krm::test::LogCapture;
using krm::test::RecordLinesOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Leaf : public krm::RecordOf<Leaf> {
public:
    void Dump(const krm::RecordLines& line) {
        line("%s.m_ulId=%d", m_ulId);
        line("%s.m_strName=%s", m_strName);
    }

    krm_ulong m_ulId = 7;  // a default that isn't 0
    CKRMString m_strName;
};

class Branch : public krm::RecordOf<Branch> {
public:
    void Dump(const krm::RecordLines& line) {
        line("[%s] m_uchSSRNo[%d]=%d", m_uchSSRNo);
        line("%s.m_cLeaf", m_cLeaf);
        line("%s.m_cLeafList[%d]", m_cLeafList);
        line("%s.m_bLast=%d", m_bLast);
    }

    CKRMList<unsigned char> m_uchSSRNo;
    Leaf m_cLeaf;
    CKRMList<Leaf> m_cLeafList;
    bool m_bLast = false;
};

class Tree : public krm::RecordOf<Tree> {
public:
    void Dump(const krm::RecordLines& line) {
        line("%s.m_cBranch", m_cBranch);
        line("%s.m_cBranchList[%d]", m_cBranchList);
    }

    Branch m_cBranch;
    CKRMList<Branch> m_cBranchList;
};

/// A field of every kind, each with the conversions that such fields have.
class Kinds : public krm::RecordOf<Kinds> {
public:
    void Dump(const krm::RecordLines& line) {
        line("%s.m_b=%d", m_b);
        line("%s.m_ch=%d", m_ch);
        line("%s.m_uch=%d", m_uch);
        line("%s.m_uch=0x%02X", m_uch);
        line("%s.m_s=%d", m_s);
        line("%s.m_ush=%u", m_ush);
        line("%s.m_ush=%04X", m_ush);
        line("%s.m_l=%d", m_l);
        line("%s.m_l=%u", m_l);
        line("%s.m_ul=%d", m_ul);
        line("%s.m_ul=%u", m_ul);
        line("%s.m_ul=0x%08X", m_ul);
        line("%s.m_ul=%010u", m_ul);
        line("%s.m_ul=%d(%u)", m_ul, m_ul);
        line("%s.m_d=%lf", m_d);
        line("%s.m_str=%s", m_str);
        line("[%s] m_ushList[%u]=%04X", m_ushList);
        line("[%s] m_ulList[%d]=%u", m_ulList);
        line("%s.m_str=%s m_d=%lf m_ch=%d", m_str, m_d, m_ch);
    }

    bool m_b = false;
    signed char m_ch = 0;
    unsigned char m_uch = 0;
    short m_s = 0;
    unsigned short m_ush = 0;
    krm_long m_l = 0;
    krm_ulong m_ul = 0;
    double m_d = 0;
    CKRMString m_str;
    CKRMList<unsigned short> m_ushList;
    CKRMList<krm_ulong> m_ulList;
};

/// A record that notes the formats of its lines instead of writing them.
template <class Record>
class Noting : public Record {
public:
    krm_long ER_WriteOperationLogFormatStructure(const char* format, ...) override KRM_PRINTF_LIKE(2, 3) {
        m_formats.emplace_back(format);
        return -1;
    }
    std::vector<std::string> m_formats;
};

TEST(RecordTest, TheBaseIsAbstractAndHasNoMember) {
    using Base = CKRMCBaseAdaptDataStructure;
    static_assert(sizeof(Base) == sizeof(void*));
    static_assert(std::has_virtual_destructor_v<Base> && std::is_abstract_v<Base>);
    static_assert(std::is_same_v<decltype(&Base::Clear), void (Base::*)()>);
}

TEST(RecordTest, TheLayerAddsNoMember) {
    struct WithoutLayer : CKRMCBaseAdaptDataStructure {
        krm_long ErrWriteOperationLogStructure(const char*, ...) override { return 0; }
        krm_ulong m_ulId = 0;
        CKRMString m_strName;
    };
    static_assert(sizeof(Leaf) == sizeof(WithoutLayer));
}

TEST(RecordTest, CopiesAreDeep) {
    Branch branch;
    branch.m_uchSSRNo.AddTail(1);
    branch.m_cLeafList.AddTail(Leaf());
    branch.m_cLeaf.m_strName = "a name that is too long to lie in the object itself";
    Branch copy(branch);
    Branch assigned;
    assigned = branch;
    branch.m_uchSSRNo[0] = 2;
    branch.m_cLeafList[0].m_ulId = 3;
    branch.m_cLeaf.m_strName += "!";
    for (Branch* it : {&copy, &assigned}) {
        EXPECT_EQ(it->m_uchSSRNo[0], 1);
        EXPECT_EQ(it->m_cLeafList[0].m_ulId, 7U);
        EXPECT_STREQ(it->m_cLeaf.m_strName.GetText(), "a name that is too long to lie in the object itself");
    }
}

TEST(RecordTest, ClearRestoresTheDefaults) {
    Branch branch;
    branch.m_uchSSRNo.AddTail(1);
    branch.m_cLeafList.AddTail(Leaf());
    branch.m_cLeaf.m_ulId = 1;
    branch.m_cLeaf.m_strName = "x";
    branch.m_bLast = true;
    CKRMCBaseAdaptDataStructure& base = branch;
    base.Clear();
    EXPECT_EQ(branch.m_uchSSRNo.GetCount(), 0);
    EXPECT_EQ(branch.m_cLeafList.GetCount(), 0);
    EXPECT_EQ(branch.m_cLeaf.m_ulId, 7U);
    EXPECT_STREQ(branch.m_cLeaf.m_strName.GetText(), "");
    EXPECT_FALSE(branch.m_bLast);
}

TEST(RecordTest, TheBasesClearDoesNothing) {
    Leaf leaf;
    leaf.m_ulId = 1;
    leaf.CKRMCBaseAdaptDataStructure::Clear();
    EXPECT_EQ(leaf.m_ulId, 1U);
}

TEST(RecordTest, OneLineIsFormattedAndWrittenWithFourAndTwo) {
    for (const krm_long result : krm::test::kLogResults) {
        const LogCapture log(result);
        Leaf leaf;
        EXPECT_EQ(leaf.ER_WriteOperationLogFormatStructure("%s.m_ulEcuId=%d", "P", 5), result);
        ASSERT_EQ(log.Lines().size(), 1U);
        EXPECT_EQ(log.Lines()[0].text, "P.m_ulEcuId=5");
        EXPECT_EQ(log.Lines()[0].length, 13U);
        EXPECT_EQ(log.Lines()[0].first, 4);
        EXPECT_EQ(log.Lines()[0].second, 2);
    }
}

TEST(RecordTest, EveryLineOfADumpHasItsLengthAndFourAndTwo) {
    const LogCapture log;
    Leaf leaf;
    leaf.m_strName = "name";
    leaf.ErrWriteOperationLogStructure("%s", "P");
    ASSERT_EQ(log.Lines().size(), 2U);
    for (const LogCapture::Line& line : log.Lines()) {
        EXPECT_EQ(line.length, line.text.size());
        EXPECT_EQ(line.first, 4);
        EXPECT_EQ(line.second, 2);
    }
}

TEST(RecordTest, ThePrefixIsFormatted) {
    const LogCapture log;
    Leaf leaf;
    leaf.ErrWriteOperationLogStructure("[%s] Data[%d]", "CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog", 3);
    EXPECT_THAT(log.Texts(), ElementsAre("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[3].m_ulId=7",
                                         "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[3].m_strName="));
}

TEST(RecordTest, AnEmptyPrefixLeavesTheDot) {
    const LogCapture log;
    Leaf leaf;
    leaf.ErrWriteOperationLogStructure("%s", "");
    EXPECT_THAT(log.Texts(), ElementsAre(".m_ulId=7", ".m_strName="));
}

TEST(RecordTest, PercentInPrefixAndFieldIsText) {
    const LogCapture log;
    Tree tree;
    tree.m_cBranch.m_cLeaf.m_strName = "100%s%d%n";
    tree.ErrWriteOperationLogStructure("%s", "50%d%%%s");
    EXPECT_THAT(log.Texts(),
                ElementsAre("50%d%%%s.m_cBranch.m_cLeaf.m_ulId=7", "50%d%%%s.m_cBranch.m_cLeaf.m_strName=100%s%d%n",
                            "50%d%%%s.m_cBranch.m_bLast=0"));
}

TEST(RecordTest, LinesAreNeverCut) {
    const std::string large(1024 * 1024, 't');
    const std::string prefix(100'000, 'p');
    const LogCapture log;
    Leaf leaf;
    leaf.m_strName = large.c_str();
    leaf.ErrWriteOperationLogStructure("%s", prefix.c_str());
    ASSERT_EQ(log.Lines().size(), 2U);
    EXPECT_EQ(log.Lines()[1].text, prefix + ".m_strName=" + large);
}

TEST(RecordTest, ReturnsZeroWhenEveryLineFails) {
    for (const krm_long result : krm::test::kLogResults) {
        const LogCapture log(result);
        Tree tree;
        tree.m_cBranchList.AddTail(Branch());
        EXPECT_EQ(tree.ErrWriteOperationLogStructure("%s", "P"), 0);
        EXPECT_EQ(log.Lines().size(), 6U);
    }
}

TEST(RecordTest, EveryKindOfFieldAtItsLimits) {
    Kinds kinds;
    kinds.m_b = true;
    kinds.m_ch = -128;
    kinds.m_uch = 255;
    kinds.m_s = -32768;
    kinds.m_ush = 65535;
    kinds.m_l = std::numeric_limits<krm_long>::min();
    kinds.m_ul = 0xFFFFFFFFU;
    kinds.m_d = -0.0000005;
    kinds.m_str = "text";
    kinds.m_ushList.AddTail(0xBEEF);
    kinds.m_ushList.AddTail(1);
    kinds.m_ulList.AddTail(0xFFFFFFFFU);
    EXPECT_THAT(RecordLinesOf(kinds),
                ElementsAre("P.m_b=1", "P.m_ch=-128", "P.m_uch=255", "P.m_uch=0xFF", "P.m_s=-32768", "P.m_ush=65535",
                            "P.m_ush=FFFF", "P.m_l=-2147483648", "P.m_l=2147483648", "P.m_ul=-1", "P.m_ul=4294967295",
                            "P.m_ul=0xFFFFFFFF", "P.m_ul=4294967295", "P.m_ul=-1(4294967295)", "P.m_d=-0.000000",
                            "P.m_str=text", "[P] m_ushList[0]=BEEF", "[P] m_ushList[1]=0001",
                            "[P] m_ulList[0]=4294967295", "P.m_str=text m_d=-0.000000 m_ch=-128"));
}

TEST(RecordTest, AnEmptyRecordWritesItsScalars) {
    Kinds kinds;
    EXPECT_THAT(RecordLinesOf(kinds),
                ElementsAre("P.m_b=0", "P.m_ch=0", "P.m_uch=0", "P.m_uch=0x00", "P.m_s=0", "P.m_ush=0", "P.m_ush=0000",
                            "P.m_l=0", "P.m_l=0", "P.m_ul=0", "P.m_ul=0", "P.m_ul=0x00000000", "P.m_ul=0000000000",
                            "P.m_ul=0(0)", "P.m_d=0.000000", "P.m_str=", "P.m_str= m_d=0.000000 m_ch=0"));
}

TEST(RecordTest, AnEmptyListWritesNoLine) {
    Branch branch;
    EXPECT_THAT(RecordLinesOf(branch), ElementsAre("P.m_cLeaf.m_ulId=7", "P.m_cLeaf.m_strName=", "P.m_bLast=0"));
}

TEST(RecordTest, AnEmptyTextEndsBehindTheEqualsSign) {
    Leaf leaf;
    EXPECT_THAT(RecordLinesOf(leaf), ElementsAre("P.m_ulId=7", "P.m_strName="));
}

TEST(RecordTest, NestedRecordsCarryAllNamesOutermostFirst) {
    Leaf leaf;
    leaf.m_ulId = 1;
    leaf.m_strName = "one";
    Branch branch;
    branch.m_uchSSRNo.AddTail(10);
    branch.m_uchSSRNo.AddTail(255);
    branch.m_cLeafList.AddTail(leaf);
    leaf.m_ulId = 2;
    leaf.m_strName = "two";
    branch.m_cLeafList.AddTail(leaf);
    Tree tree;
    tree.m_cBranch.m_bLast = true;
    tree.m_cBranchList.AddTail(Branch());
    tree.m_cBranchList.AddTail(branch);
    EXPECT_THAT(
        RecordLinesOf(tree),
        ElementsAre("P.m_cBranch.m_cLeaf.m_ulId=7", "P.m_cBranch.m_cLeaf.m_strName=", "P.m_cBranch.m_bLast=1",
                    "P.m_cBranchList[0].m_cLeaf.m_ulId=7", "P.m_cBranchList[0].m_cLeaf.m_strName=",
                    "P.m_cBranchList[0].m_bLast=0", "[P.m_cBranchList[1]] m_uchSSRNo[0]=10",
                    "[P.m_cBranchList[1]] m_uchSSRNo[1]=255", "P.m_cBranchList[1].m_cLeaf.m_ulId=7",
                    "P.m_cBranchList[1].m_cLeaf.m_strName=", "P.m_cBranchList[1].m_cLeafList[0].m_ulId=1",
                    "P.m_cBranchList[1].m_cLeafList[0].m_strName=one", "P.m_cBranchList[1].m_cLeafList[1].m_ulId=2",
                    "P.m_cBranchList[1].m_cLeafList[1].m_strName=two", "P.m_cBranchList[1].m_bLast=0"));
}

TEST(RecordTest, EachLineIsOneCallWithItsLiteral) {
    Noting<Leaf> leaf;
    const LogCapture log;
    EXPECT_EQ(leaf.ErrWriteOperationLogStructure("%s", "P"), 0);
    EXPECT_THAT(leaf.m_formats, ElementsAre("%s.m_ulId=%d", "%s.m_strName=%s"));
    EXPECT_THAT(log.Texts(), IsEmpty());
}

TEST(RecordTest, ElementsOfAListOfNumbersAreLinesOfTheirHolder) {
    Noting<Branch> branch;
    branch.m_uchSSRNo.AddTail(1);
    branch.m_uchSSRNo.AddTail(2);
    const LogCapture log;
    branch.ErrWriteOperationLogStructure("%s", "P");
    EXPECT_THAT(branch.m_formats, ElementsAre("[%s] m_uchSSRNo[%d]=%d", "[%s] m_uchSSRNo[%d]=%d", "%s.m_bLast=%d"));
    // The embedded record writes its lines itself.
    EXPECT_THAT(log.Texts(), ElementsAre("P.m_cLeaf.m_ulId=7", "P.m_cLeaf.m_strName="));
}

TEST(RecordTest, EmbeddedRecordsAreAskedVirtually) {
    /// Holds a record that notes its lines.
    class Holder : public krm::RecordOf<Holder> {
    public:
        void Dump(const krm::RecordLines& line) {
            line("%s.m_cLeaf", m_cLeaf);
            line("%s.m_cLeafList[%d]", m_cLeafList);
        }
        Noting<Leaf> m_cLeaf;
        CKRMList<Noting<Leaf>> m_cLeafList;
    };
    Holder holder;
    holder.m_cLeafList.AddTail(Noting<Leaf>());
    EXPECT_THAT(RecordLinesOf(holder), IsEmpty());
    EXPECT_THAT(holder.m_cLeaf.m_formats, ElementsAre("%s.m_ulId=%d", "%s.m_strName=%s"));
    EXPECT_THAT(holder.m_cLeafList[0].m_formats, ElementsAre("%s.m_ulId=%d", "%s.m_strName=%s"));
}

TEST(RecordTest, ADumpLeavesTheRecord) {
    Branch branch;
    branch.m_uchSSRNo.AddTail(1);
    branch.m_cLeafList.AddTail(Leaf());
    const std::vector<std::string> first = RecordLinesOf(branch);
    EXPECT_EQ(first.size(), 6U);
    EXPECT_EQ(RecordLinesOf(branch), first);
}

TEST(RecordTest, TwoDumpsDontShareTheirPrefix) {
    /// Dumps another record between its own lines.
    class Interrupted : public krm::RecordOf<Interrupted> {
    public:
        void Dump(const krm::RecordLines& line) {
            line("%s.m_ulFirst=%d", m_ulFirst);
            Leaf other;
            other.ErrWriteOperationLogStructure("%s", "other");
            line("%s.m_ulSecond=%d", m_ulSecond);
        }
        krm_ulong m_ulFirst = 1;
        krm_ulong m_ulSecond = 2;
    };
    Interrupted interrupted;
    EXPECT_THAT(RecordLinesOf(interrupted),
                ElementsAre("P.m_ulFirst=1", "other.m_ulId=7", "other.m_strName=", "P.m_ulSecond=2"));
}

TEST(RecordTest, TheLibrarysRecordsDumpAlikeAloneAndNested) {
    CKRMCCommandConversionData conversion;
    conversion.m_cDataMax.m_ulRawData = 255;
    CKRMCCommandDispData pattern;
    pattern.m_strDataPhys = "ON";
    pattern.m_chIndex = -1;
    conversion.m_cPatternDispList.AddTail(pattern);
    const std::vector<std::string> alone = RecordLinesOf(pattern);
    EXPECT_THAT(alone, ElementsAre("P.m_ulDataStringId=0", "P.m_strDataPhys=ON",
                                   "P.m_strData=", "P.m_dDataPhys=0.000000", "P.m_dData=0.000000", "P.m_ulRawData=0",
                                   "P.m_chIndex=-1", "P.m_lIndex=0", "P.m_ulDispDataType=0"));
    const std::vector<std::string> nested = RecordLinesOf(conversion);
    ASSERT_EQ(nested.size(), 7U + 5U * 9U);
    EXPECT_EQ(nested[7 + 5], "P.m_cDataMax.m_ulRawData=255");
    for (std::size_t i = 0; i < alone.size(); ++i) {
        EXPECT_EQ(nested[7 + 4 * 9 + i], "P.m_cPatternDispList[0]" + alone[i].substr(1));
    }
}

TEST(RecordTest, ATextWithoutValuesIsALineToo) {
    /// Writes a heading.
    class Heading : public krm::RecordOf<Heading> {
    public:
        void Dump(const krm::RecordLines& line) { line("[%s] heading"); }
    };
    Heading heading;
    EXPECT_THAT(RecordLinesOf(heading), ElementsAre("[P] heading"));
}

// The check of a line's literal runs while compiling; what must not pass is in tests/must_not_compile/.
using krm::FieldKind;
constexpr FieldKind kNumber[] = {FieldKind::Number};
constexpr FieldKind kNumbers[] = {FieldKind::Number, FieldKind::Number};
constexpr FieldKind kReal[] = {FieldKind::Real};
constexpr FieldKind kText[] = {FieldKind::Text};
constexpr FieldKind kRecord[] = {FieldKind::Record};
constexpr FieldKind kRecordList[] = {FieldKind::RecordList};
constexpr FieldKind kNumberList[] = {FieldKind::NumberList};
static_assert((krm::CheckLine("%s.m_ulId=%d", 0, kNumber, 1), true));
static_assert((krm::CheckLine("%s.m_ulId=0x%08X", 0, kNumber, 1), true));
static_assert((krm::CheckLine("[%s] m_ulId=%010u", 0, kNumber, 1), true));
static_assert((krm::CheckLine("%s.m_ulValue=%d(%u)", 0, kNumbers, 2), true));
static_assert((krm::CheckLine("%s.m_dData=%lf", 0, kReal, 1), true));
static_assert((krm::CheckLine("%s.m_strName=%s", 0, kText, 1), true));
static_assert((krm::CheckLine("%s.m_cTripTime", 0, kRecord, 1), true));
static_assert((krm::CheckLine("%s.m_cEcuList[%d]", 0, kRecordList, 1), true));
static_assert((krm::CheckLine("[%s] m_cVolList[%u]", 0, kRecordList, 1), true));
static_assert((krm::CheckLine("[%s] m_uchSSRNo[%d]=%d", 0, kNumberList, 1), true));
static_assert((krm::CheckLine("[%s] Data[%d].m_cList[%d].m_uchList[%d]=0x%02X", 2, kNumberList, 1), true));
static_assert((krm::CheckLine("[%s] heading", 0, nullptr, 0), true));

static_assert(krm::KindOf<bool>() == FieldKind::Number && krm::KindOf<signed char>() == FieldKind::Number &&
              krm::KindOf<unsigned char>() == FieldKind::Number && krm::KindOf<unsigned short>() == FieldKind::Number &&
              krm::KindOf<krm_ulong>() == FieldKind::Number && krm::KindOf<krm_long>() == FieldKind::Number);
static_assert(krm::KindOf<double>() == FieldKind::Real && krm::KindOf<CKRMString>() == FieldKind::Text);
static_assert(krm::KindOf<Leaf>() == FieldKind::Record && krm::KindOf<CKRMList<Leaf>>() == FieldKind::RecordList);
static_assert(krm::KindOf<CKRMList<krm_ulong>>() == FieldKind::NumberList);

// What reaches the log's "..." has 32 bits of the field's signedness, or is a double or a text.
static_assert(std::is_same_v<decltype(krm::Passed(true)), int>);
static_assert(std::is_same_v<decltype(krm::Passed(std::declval<signed char>())), int>);
static_assert(std::is_same_v<decltype(krm::Passed(std::declval<unsigned char>())), unsigned>);
static_assert(std::is_same_v<decltype(krm::Passed(std::declval<unsigned short>())), unsigned>);
static_assert(std::is_same_v<decltype(krm::Passed(std::declval<krm_long>())), int>);
static_assert(std::is_same_v<decltype(krm::Passed(std::declval<krm_ulong>())), unsigned>);
static_assert(std::is_same_v<decltype(krm::Passed(0.5)), double>);
static_assert(std::is_same_v<decltype(krm::Passed(std::declval<const CKRMString&>())), const char*>);

}  // namespace
