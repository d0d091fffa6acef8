// Loops, paths, removing one node, copies and XML.
#include "krm/tree/tools.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "tests/support/failing_allocation.h"
#include "tests/support/not_under.h"
#include "tests/support/small_stack.h"
#include "tests/tree/own_nodes.h"

namespace krm::test {
namespace {

static_assert(std::forward_iterator<tree::Siblings<CKRMCElement>::Iterator>);

template <class Value>
void Set(CKRMCElement& element, const char* name, Value value) {
    ASSERT_TRUE(element.CreateAttribute(nullptr, name)->SetValue(nullptr, value));
}

/// Two ECUs with two and one trouble codes, and a group without elements.
std::unique_ptr<CKRMCElement> Vehicle() {
    auto vehicle = std::make_unique<CKRMCElement>("Vehicle");
    for (const krm_ulong id : {krm_ulong{2024}, krm_ulong{2025}}) {
        CKRMCElement* const ecu = vehicle->CreateElement(nullptr, "Ecu");
        Set(*ecu, "Id", id);
        for (krm_ulong code = id; code < 2026; ++code) {
            CKRMCElement* const dtc = ecu->CreateElement(nullptr, "Dtc");
            Set(*dtc, "Code", std::to_string(code).c_str());
            Set(*dtc, "Count", krm_long{-3});
            Set(*dtc, "Odometer", 2.5);
            dtc->CreateAttribute(nullptr, "Note");
        }
    }
    vehicle->CreateElementGroup(nullptr, "Key");
    return vehicle;
}

template <class Nodes>
std::string Names(Nodes nodes) {
    std::string names;
    for (auto& node : nodes) {
        names += node.GetName();
        names += ' ';
    }
    return names;
}

/// The chain's names both ways, which must be each other's reverse, with every node's parent.
template <class Node>
std::vector<std::string> ChainOf(Node* first, const CKRMCNode& parent) {
    std::vector<std::string> names;
    const CKRMCNode* last = nullptr;
    for (const CKRMCNode* node = first; node != nullptr; node = node->GetNext()) {
        EXPECT_EQ(last, node->GetPrev());
        EXPECT_EQ(&parent, node->GetParent());
        names.emplace_back(node->GetName());
        last = node;
    }
    return names;
}

using NamesOf = std::vector<std::string>;

// ---- Loops ----

TEST(TreeLoops, GoThroughAttributesGroupsAndElements) {
    const auto vehicle = Vehicle();
    CKRMCElement& ecu = *vehicle->GetFirstElement(nullptr, "Ecu");
    EXPECT_EQ("Ecu Key ", Names(tree::Groups(*vehicle)));
    EXPECT_EQ("Ecu Ecu ", Names(tree::Children(*vehicle, "Ecu")));
    EXPECT_EQ("Dtc Dtc ", Names(tree::Elements(*ecu.GetFirstGroup())));
    EXPECT_EQ("Code Count Odometer Note ", Names(tree::Attributes(*ecu.GetFirstElement(nullptr, "Dtc"))));
    EXPECT_EQ("", Names(tree::Children(*vehicle, "Key")));
    EXPECT_EQ("", Names(tree::Children(*vehicle, "None")));
    EXPECT_EQ("", Names(tree::Attributes(*vehicle)));
    auto each = tree::Groups(*vehicle).begin();
    EXPECT_STREQ("Ecu", (each++)->GetName());
    EXPECT_STREQ("Key", each->GetName());
    EXPECT_EQ(tree::Groups(*vehicle).end(), ++each);
}

// ---- Paths ----

TEST(TreePath, LeadsToElements) {
    const auto vehicle = Vehicle();
    const auto codes = [&](const char* path) {
        std::string text;
        for (CKRMCElement* const dtc : tree::FindAll(*vehicle, path)) {
            text += dtc->GetAttribute(nullptr, "Code")->GetString();
            text += ' ';
        }
        EXPECT_EQ(text.empty(), tree::Find(*vehicle, path) == nullptr) << path;
        return text;
    };
    EXPECT_EQ("2024 2025 2025 ", codes("Ecu/Dtc"));
    EXPECT_EQ("2024 2025 ", codes("Ecu[0]/Dtc"));
    EXPECT_EQ("2025 ", codes("Ecu[1]/Dtc"));
    EXPECT_EQ("", codes("Ecu[2]/Dtc"));
    EXPECT_EQ("2024 2025 ", codes("Ecu/Dtc[0]")) << "the first of every ECU";
    EXPECT_EQ("2025 ", codes("Ecu[@Id=2025]/Dtc"));
    EXPECT_EQ("2025 2025 ", codes("Ecu/Dtc[@Code=2025]"));
    EXPECT_EQ("2024 2025 2025 ", codes("Ecu/Dtc[@Count=-3]"));
    EXPECT_EQ("2024 2025 2025 ", codes("Ecu/Dtc[@Odometer=2.50]"));
    EXPECT_EQ("", codes("Ecu/Dtc[@Note=]")) << "an empty attribute has no value";
    EXPECT_EQ("", codes("Ecu/Dtc[@Code=02025]")) << "texts match byte by byte";
    EXPECT_EQ("2025 2025 ", codes("Ecu/Dtc[@Code=2025]"));
    EXPECT_EQ("", codes("Ecu/Dtc[@None=1]"));
    EXPECT_EQ("", codes("Dtc"));
    EXPECT_EQ("", codes("Key"));
    EXPECT_EQ("2025", std::string(tree::Find(*vehicle, "Ecu/Dtc[1]")->GetAttribute(nullptr, "Code")->GetString()));
}

TEST(TreePath, AValueMayHaveAnEqualsSign) {
    CKRMCElement root("R");
    CKRMCElement* const first = root.CreateElement(nullptr, "E");
    Set(*first, "Unit", "a=b=c");
    EXPECT_EQ(first, tree::Find(root, "E[@Unit=a=b=c]"));
    EXPECT_EQ(nullptr, tree::Find(root, "E[@Unit=a=b]"));
}

TEST(TreePath, OfAnotherFormFindsNothing) {
    const auto vehicle = Vehicle();
    for (const char* const path :
         {"", "/", "/Ecu", "Ecu/", "Ecu//Dtc", "Ecu[", "Ecu[]", "Ecu[x]", "Ecu[-1]", "Ecu[0", "Ecu[0]Dtc", "Ecu[0][0]",
          "Ecu[@Id]", "Ecu[@Id=2024", "Ecu[99999999999999999999999]", "[0]", "ecu", "Ecu ", "Ecu[ 0]"}) {
        EXPECT_TRUE(tree::FindAll(*vehicle, path).empty()) << path;
        EXPECT_EQ(nullptr, tree::Find(*vehicle, path)) << path;
    }
}

// ---- Removing ----

TEST(TreeRemove, TakesOutOneNodeWhereverItStands) {
    for (int which = 0; which < 3; ++which) {
        CKRMCElement parent("P");
        std::vector<CKRMCNode*> elements;
        for (const char* const name : {"a", "b", "c"}) {
            parent.CreateAttribute(nullptr, name);
            parent.CreateElementGroup(nullptr, name);
            elements.push_back(parent.CreateElement(nullptr, "e"));
            Set(*parent.GetElementGroup(nullptr, "e")->GetFirstElement(nullptr), "x", krm_long{1});
        }
        CKRMCElementGroup* const group = parent.GetElementGroup(nullptr, "e");
        const NamesOf names = which == 0 ? NamesOf{"b", "c"} : which == 1 ? NamesOf{"a", "c"} : NamesOf{"a", "b"};
        const char* const name = which == 0 ? "a" : which == 1 ? "b" : "c";

        const std::unique_ptr<CKRMCNode> attribute = tree::Remove(*parent.GetAttribute(nullptr, name));
        EXPECT_STREQ(name, attribute->GetName());
        EXPECT_TRUE(attribute->GetNext() == nullptr && attribute->GetPrev() == nullptr);
        EXPECT_EQ(nullptr, attribute->GetParent());
        EXPECT_EQ(names, ChainOf(parent.GetFirstAttribute(), parent));

        EXPECT_STREQ(name, tree::Remove(*parent.GetElementGroup(nullptr, name))->GetName());
        NamesOf groups = ChainOf(parent.GetFirstGroup(), parent);
        std::erase(groups, "e");
        EXPECT_EQ(names, groups);

        CKRMCNode* const taken = elements[static_cast<std::size_t>(which)];
        elements.erase(elements.begin() + which);
        EXPECT_EQ(taken, tree::Remove(*taken).get());
        EXPECT_EQ(2U, ChainOf(group->GetFirstElement(nullptr), *group).size());
        EXPECT_EQ(elements[0], group->GetFirstElement(nullptr));
        EXPECT_EQ(elements[1], elements[0]->GetNext());

        // What is appended now stands behind the last one.
        parent.CreateAttribute(nullptr, "new");
        parent.CreateElementGroup(nullptr, "new");
        const CKRMCNode* const created = group->CreateElement(nullptr);
        EXPECT_EQ(created, elements[1]->GetNext());
        EXPECT_EQ("new", ChainOf(parent.GetFirstAttribute(), parent).back());
        EXPECT_EQ("new", ChainOf(parent.GetFirstGroup(), parent).back());
    }
}

TEST(TreeRemove, OfTheLastElementLeavesAnEmptyGroup) {
    CKRMCElement parent("P");
    CKRMCElement* const only = parent.CreateElement(nullptr, "e");
    only->CreateElement(nullptr, "below");
    tree::Remove(*only);
    EXPECT_EQ("e ", Names(tree::Groups(parent)));
    EXPECT_EQ(nullptr, parent.GetFirstElement(nullptr, "e"));
    EXPECT_EQ("<P>\n</P>\n", Described(parent));
    EXPECT_STREQ("e", parent.CreateElement(nullptr, "e")->GetName());
}

TEST(TreeRemove, LeavesANodeAloneThatNoneHolds) {
    CKRMCElement root("R");
    CKRMCNode other(77, "other");
    Link::ToParent(other, other);
    EXPECT_EQ(nullptr, tree::Remove(root));
    EXPECT_EQ(nullptr, tree::Remove(other)) << "held by what is no element or group";
    EXPECT_EQ(&other, other.GetParent());
}

TEST(TreeRemove, TakesOutNodesOfAUsersOwn) {
    std::vector<std::string> destroyed;
    {
        OwnElement parent("P");
        OwnGroup* const group = new OwnGroup("g");
        parent.Adopt(group);
        for (const char* const name : {"a", "b", "c"}) {
            parent.Adopt(new Mortal<CKRMCAttribute>(name, destroyed));
            group->Adopt(new Mortal<CKRMCElement>(name, destroyed));
        }
        tree::Remove(*parent.GetFirstAttribute()->GetNext());
        EXPECT_EQ(NamesOf{"b"}, destroyed);
        tree::Remove(*group->GetFirstElement(nullptr)->GetNext()->GetNext());
        EXPECT_EQ((NamesOf{"b", "c"}), destroyed);
        EXPECT_STREQ("b", group->LastElement()->GetName());
        EXPECT_STREQ("c", parent.LastAttribute()->GetName());
        EXPECT_EQ((NamesOf{"a", "c"}), ChainOf(parent.GetFirstAttribute(), parent));
        EXPECT_EQ((NamesOf{"a", "b"}), ChainOf(group->GetFirstElement(nullptr), *group));
    }
    EXPECT_EQ(6U, destroyed.size());
}

// ---- Copies ----

TEST(TreeClone, OwnsAllThatItHolds) {
    auto vehicle = Vehicle();
    const std::string text = Described(*vehicle);
    const std::unique_ptr<CKRMCElement> copy = tree::Clone(*vehicle);
    EXPECT_EQ(text, Described(*copy));
    EXPECT_EQ(tree::ToXml(*vehicle), tree::ToXml(*copy));
    EXPECT_EQ("Ecu Key ", Names(tree::Groups(*copy)));
    CKRMCElement& first = *tree::Find(*vehicle, "Ecu/Dtc");
    Set(first, "Code", "changed");
    tree::Remove(*tree::Find(*vehicle, "Ecu[1]"));
    EXPECT_EQ(text, Described(*copy));
    EXPECT_EQ((NamesOf{"Ecu", "Key"}), ChainOf(copy->GetFirstGroup(), *copy));
    vehicle.reset();
    EXPECT_EQ(text, Described(*copy));
}

TEST(TreeClone, LeavesSiblingsAndParentBehind) {
    const auto vehicle = Vehicle();
    const std::unique_ptr<CKRMCElement> ecu = tree::Clone(*vehicle->GetFirstElement(nullptr, "Ecu"));
    EXPECT_TRUE(ecu->GetNext() == nullptr && ecu->GetParent() == nullptr);
    EXPECT_EQ(2U, tree::FindAll(*ecu, "Dtc").size());
    const std::unique_ptr<CKRMCElementGroup> group = tree::Clone(*vehicle->GetFirstGroup());
    EXPECT_TRUE(group->GetNext() == nullptr && group->GetParent() == nullptr);
    EXPECT_EQ((NamesOf{"Ecu", "Ecu"}), ChainOf(group->GetFirstElement(nullptr), *group));
    CKRMCElement& dtc = *tree::Find(*vehicle, "Ecu/Dtc");
    for (CKRMCAttribute& attribute : tree::Attributes(dtc)) {
        const std::unique_ptr<CKRMCAttribute> copy = tree::Clone(attribute);
        EXPECT_TRUE(copy->GetNext() == nullptr && copy->GetPrev() == nullptr && copy->GetParent() == nullptr);
        EXPECT_STREQ(attribute.GetName(), copy->GetName());
        EXPECT_EQ(attribute.GetValueType(), copy->GetValueType());
        EXPECT_EQ(attribute.GetValueType() != tree::kEmptyValue, copy->CompareValue(nullptr, &attribute));
        EXPECT_TRUE(copy->GetString() == nullptr || copy->GetString() != attribute.GetString());
    }
}

/// An attribute with a value of a type of its own.
class OwnValue : public CKRMCAttribute {
public:
    explicit OwnValue(const char* name) : CKRMCAttribute(name) {
        m_ulValueType = 9;
        m_pValue = ::operator new(1);
    }
};

TEST(TreeClone, OfClassesOfAUsersOwnKeepsWhatTheyInherit) {
    std::vector<std::string> destroyed;
    OwnElement parent("P");
    OwnGroup* const group = new OwnGroup("g");
    parent.Adopt(group);
    group->Adopt(new Mortal<CKRMCElement>("of another name", destroyed));
    group->Adopt(new Mortal<CKRMCElement>("g", destroyed));
    parent.Adopt(new CKRMCAttribute("same", krm_long{1}));
    parent.Adopt(new CKRMCAttribute("same", krm_long{2}));
    parent.Adopt(new OwnValue("own"));
    const std::unique_ptr<CKRMCElement> copy = tree::Clone(parent);
    EXPECT_EQ(
        "<P same[3]=\"1\" same[3]=\"2\" own[0]=\"NULL\">\n<of another name>\n</of another name>\n<g>\n</g>\n</P>\n",
        Described(*copy));
    const CKRMCElementGroup& copiedGroup = *copy->GetFirstGroup();
    EXPECT_EQ(typeid(CKRMCElementGroup), typeid(copiedGroup));
    const tree::XmlTree read = tree::FromXml(tree::ToXml(parent));
    ASSERT_NE(nullptr, read.root) << read.error;
    EXPECT_EQ(Described(*copy), Described(*read.root));
}

/// Links a node of no class of the tree between elements.
TEST(TreeClone, LeavesOutWhatIsNoNodeOfATree) {
    auto group = std::make_unique<OwnGroup>("g");
    group->Adopt(new CKRMCElement("a"));
    CKRMCNode* const stranger = new CKRMCNode(77, "stranger");
    Link::Between(*group->LastElement(), *stranger);
    EXPECT_EQ("<a>\n</a>\n", Described(*tree::Clone(*group)));
}

TEST(TreeTools, LeaveNothingBehindWithoutMemory) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    const auto vehicle = Vehicle();
    const std::string xml = tree::ToXml(*vehicle);
    const auto failUntilDone = [](auto call) {
        int successes = 0;
        for (bool done = false; !done; ++successes) {
            const long before = LivingBlocks();
            try {
                const FailAllocations fail(successes);
                call();
                done = true;
            } catch (const std::bad_alloc&) {
                done = false;
            }
            EXPECT_EQ(before, LivingBlocks()) << "after " << successes;
        }
        EXPECT_GT(successes, 2);
    };
    failUntilDone([&] { EXPECT_NE(nullptr, tree::Clone(*vehicle)); });
    failUntilDone([&] { EXPECT_FALSE(tree::ToXml(*vehicle).empty()); });
    failUntilDone([&] { EXPECT_NE(nullptr, tree::FromXml(xml).root); });
}

TEST(TreeTools, NeedNoStackForManySiblingsOrLevels) {
    KRM_NOT_UNDER(Memcheck, "it would take minutes");
    constexpr int kMany = 200'000;
    RunOnSmallStack([] {
        for (const bool deep : {false, true}) {
            auto root = std::make_unique<CKRMCElement>("r");
            CKRMCElement* parent = root.get();
            CKRMCElementGroup* group = parent->CreateElementGroup(nullptr, "e");
            for (int i = 0; i < kMany; ++i) {
                CKRMCElement* const element = group->CreateElement(nullptr);
                group = deep ? element->CreateElementGroup(nullptr, "e") : group;
            }
            CKRMCElement* const middle = deep ? tree::Find(*root, "e/e/e") : tree::Find(*root, "e[100000]");
            ASSERT_NE(nullptr, middle);
            const std::unique_ptr<CKRMCElement> copy = tree::Clone(*root);
            const std::string xml = tree::ToXml(*copy);
            tree::XmlTree read = tree::FromXml(xml);
            ASSERT_NE(nullptr, read.root);
            EXPECT_TRUE(xml == tree::ToXml(*read.root));
            tree::Remove(*middle);
            EXPECT_EQ(deep ? 0U : kMany - 1U, tree::FindAll(*root, deep ? "e/e/e" : "e").size());
        }
    });
}

// ---- XML ----

TEST(TreeXml, IsWrittenAsDocumented) {
    CKRMCElement ecu("Ecu");
    Set(ecu, "Id", krm_ulong{2024});
    Set(ecu, "Name", "a<b> & \"c\"\t\r\n\xC3\xA4'");
    Set(ecu, "Offset", krm_long{-40});
    Set(ecu, "Factor", 0.1);
    ecu.CreateAttribute(nullptr, "None");
    ecu.CreateElement(nullptr, "Dtc");
    ecu.CreateElementGroup(nullptr, "Key");
    EXPECT_EQ(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<element name=\"Ecu\">\n"
        "<attribute name=\"Id\" type=\"ulong\" value=\"2024\"/>\n"
        "<attribute name=\"Name\" type=\"string\" value=\"a&lt;b&gt; &amp; &quot;c&quot;&#9;&#13;&#10;\xC3\xA4'\"/>\n"
        "<attribute name=\"Offset\" type=\"long\" value=\"-40\"/>\n"
        "<attribute name=\"Factor\" type=\"double\" value=\"0.1\"/>\n"
        "<attribute name=\"None\" type=\"empty\"/>\n"
        "<group name=\"Dtc\">\n"
        "<element name=\"Dtc\">\n"
        "</element>\n"
        "</group>\n"
        "<group name=\"Key\">\n"
        "</group>\n"
        "</element>\n",
        tree::ToXml(ecu));
}

TEST(TreeXml, WritesInHexadecimalWhatXmlCannotHold) {
    const auto line = [](const char* text) {
        const std::string xml = tree::ToXml(CKRMCElement(text));
        const std::size_t begin = xml.find("<element");
        return xml.substr(begin, xml.find('\n', begin) - begin);
    };
    EXPECT_EQ("<element name-hex=\"41014A\">", line("A\x01J"));
    EXPECT_EQ("<element name=\"\">", line(""));
    for (const char* const good : {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                                   "\xEF\xBF\xBD", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(std::string("<element name=\"") + good + "\">", line(good));
    }
    for (const char* const bad : {"\x01", "\x1F", "\x0B", "\x80", "\xC0\x80", "\xC1\xBF", "\xC2", "\xC2\x41",
                                  "\xE0\x9F\xBF", "\xED\xA0\x80", "\xEF\xBF\xBE", "\xEF\xBF\xBF", "\xE2\x82",
                                  "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xF0\x90\x80"}) {
        EXPECT_EQ(0U, line(bad).find("<element name-hex=\"")) << line(bad);
    }
}

TEST(TreeXml, LosesNothing) {
    CKRMCElement element("\x02 \xFF");
    std::string every;
    for (int i = 1; i < 256; ++i) {
        every += static_cast<char>(i);
        Set(element, std::string(1, static_cast<char>(i)).c_str(), std::string(3, static_cast<char>(i)).c_str());
    }
    Set(element, every.c_str(), every.c_str());
    Set(element, "entity", "&amp; &lt;x&gt; &#10;");
    Set(element, "", "");
    Set(element, "lowest", std::numeric_limits<krm_long>::min());
    Set(element, "highest", std::numeric_limits<krm_ulong>::max());
    const std::vector<double> numbers = {0.0,
                                         -0.0,
                                         0.1,
                                         1e308,
                                         5e-324,
                                         -1.0 / 3,
                                         12345678901234567.0,
                                         std::numeric_limits<double>::infinity(),
                                         -std::numeric_limits<double>::infinity(),
                                         std::numeric_limits<double>::quiet_NaN(),
                                         std::bit_cast<double>(std::uint64_t{0xFFF8000000001234U})};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        Set(element, ("number" + std::to_string(i)).c_str(), numbers[i]);
    }
    const tree::XmlTree read = tree::FromXml(tree::ToXml(element));
    ASSERT_NE(nullptr, read.root) << read.error;
    EXPECT_EQ(Described(element), Described(*read.root));
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const double number = read.root->GetAttribute(nullptr, ("number" + std::to_string(i)).c_str())->GetDouble();
        EXPECT_EQ(std::bit_cast<std::uint64_t>(numbers[i]), std::bit_cast<std::uint64_t>(number)) << numbers[i];
    }
}

TEST(TreeXml, ReadsWhatItHasWritten) {
    const auto vehicle = Vehicle();
    const std::string xml = tree::ToXml(*vehicle);
    const tree::XmlTree read = tree::FromXml(xml);
    ASSERT_NE(nullptr, read.root);
    EXPECT_STREQ("", read.error);
    EXPECT_EQ(Described(*vehicle), Described(*read.root));
    EXPECT_EQ("Ecu Key ", Names(tree::Groups(*read.root)));
    EXPECT_EQ(xml, tree::ToXml(*read.root));
}

/// `lines` between the declaration and the end.
std::string ErrorOf(const std::string& lines) {
    const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    const long before = LivingBlocks();
    std::size_t offset = 0;
    const char* error = nullptr;
    {
        const tree::XmlTree read = tree::FromXml(declaration + lines);
        if (read.root != nullptr) {
            return "none";
        }
        offset = read.errorOffset;
        error = read.error;
    }
    EXPECT_EQ(before, LivingBlocks()) << "something half-built is left";
    return std::to_string(offset - declaration.size()) + ": " + error;
}

TEST(TreeXml, TellsWhereADocumentIsWrong) {
    const std::string open = "<element name=\"E\">\n";
    const std::string close = "</element>\n";
    EXPECT_EQ("none", ErrorOf(open + close));
    EXPECT_EQ("0: the document ends too early", ErrorOf(""));
    EXPECT_EQ("19: the document ends too early", ErrorOf(open));
    EXPECT_EQ("19: the document ends too early", ErrorOf(open + "</element>"));
    EXPECT_EQ("30: there is something behind the end", ErrorOf(open + close + "\n"));
    EXPECT_EQ("0: this tag has no place here", ErrorOf(close));
    EXPECT_EQ("0: this tag has no place here", ErrorOf("text\n"));
    EXPECT_EQ("19: this tag has no place here", ErrorOf(open + "</group>\n"));
    EXPECT_EQ("0: a group stands in an element", ErrorOf("<group name=\"g\">\n"));
    EXPECT_EQ("19: an element stands in a group", ErrorOf(open + open));
    EXPECT_EQ("0: an attribute stands in an element, before its groups",
              ErrorOf("<attribute name=\"a\" type=\"empty\"/>\n"));
    EXPECT_EQ("45: an attribute stands in an element, before its groups",
              ErrorOf(open + "<group name=\"g\">\n</group>\n" + "<attribute name=\"a\" type=\"empty\"/>\n"));
    EXPECT_EQ("0: the element has no name", ErrorOf("<element>\n"));
    EXPECT_EQ("0: the element has no name", ErrorOf("<element name=\"E>\n"));
    EXPECT_EQ("19: the group has no name", ErrorOf(open + "<group >\n"));
    for (const char* const line :
         {"<element  name=\"E\">", "<element name=\"E\" >", "<element name=\"E\"/>", "<element name='E'>",
          "<element name=\"<\">", "<element name=\"&\">", "<element name=\"&apos;\">", "<element name=\"\x01\">",
          "<element name=\"\xFF\">", "<element name=\"\t\">", "<element name-hex=\"41\">", "<element name-hex=\"01F\">",
          "<element name-hex=\"0g\">", "<element name-hex=\"0100\">", "<element name-hex=\"ff\">",
          "<element name-hex=\"\">"}) {
        EXPECT_EQ(0U, ErrorOf(std::string(line) + "\n" + close).find("0: ")) << line;
    }
    for (const char* const rest :
         {" type=\"empty\">", " type=\"empty\" value=\"\"/>", " type=\"string\"/>", " type=\"long\" value=\"\"/>",
          " type=\"long\" value=\"2147483648\"/>", " type=\"long\" value=\"+1\"/>", " type=\"long\" value=\"01\"/>",
          " type=\"ulong\" value=\"-1\"/>", " type=\"ulong\" value=\"4294967296\"/>",
          " type=\"double\" value=\"1.50\"/>", " type=\"double\" value=\"nan\"/>", " type=\"double\" value=\"1e999\"/>",
          " type=\"double\" value-hex=\"3FF0000000000000\"/>", " type=\"double\" value-hex=\"7FF8\"/>",
          " type=\"text\" value=\"x\"/>", " value=\"x\"/>", "", "/>", " type=\"string\" value=\"x\"/> "}) {
        EXPECT_EQ(0U, ErrorOf(open + "<attribute name=\"a\"" + rest + "\n" + close).find("19: ")) << rest;
    }
    for (const char* const start : {"", "\n", "<?xml version=\"1.0\"?>\n", "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n"}) {
        const tree::XmlTree read = tree::FromXml(start + open + close);
        EXPECT_EQ(nullptr, read.root);
        EXPECT_EQ(0U, read.errorOffset);
        EXPECT_STREQ("this is no document of an element tree", read.error) << start;
    }
}

/// Whatever is changed or cut, what is read is written again in the same way.
TEST(TreeXml, ReadsNothingElse) {
    auto vehicle = Vehicle();
    Set(*vehicle, "\x01", "\xFF & more");
    Set(*vehicle, "inf", std::numeric_limits<double>::infinity());
    tree::Remove(*tree::Find(*vehicle, "Ecu[0]"));
    const std::string xml = tree::ToXml(*vehicle);
    for (std::size_t i = 0; i < xml.size(); ++i) {
        EXPECT_EQ(nullptr, tree::FromXml(std::string_view(xml).substr(0, i)).root) << i;
        std::string without = xml;
        without.erase(i, 1);
        for (const char character : {'\0', '"', '<', '0', 'x', '\n'}) {
            std::string other = xml;
            other[i] = character;
            for (const std::string& changed : {other, without}) {
                const tree::XmlTree read = tree::FromXml(changed);
                EXPECT_TRUE(read.root == nullptr || tree::ToXml(*read.root) == changed) << i;
            }
        }
    }
}

}  // namespace
}  // namespace krm::test
