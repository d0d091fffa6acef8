// A tree of 10,000 elements with three attributes and one child each: built, described, destroyed. The peer is pugixml,
// which builds and saves the same document.
#include <array>
#include <cstring>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "benchmarks/workload.h"
#include "krm/tree/attribute.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"

namespace krm::bench {
namespace {

constexpr krm_ulong kElements = 10'000;
constexpr std::array<const char*, 4> kNames = {"Engine", "Brake/EPB", "Air Conditioner (front and rear)", "Main Body"};

const char* NameOf(krm_ulong i) {
    return kNames[i % kNames.size()];
}
krm_ulong IdOf(krm_ulong i) {
    return 0x700 + i * 8;
}
krm_long OffsetOf(krm_ulong i) {
    return -static_cast<krm_long>(i % 4096);
}

void Build(CKRMCElement& root, CKRMError& error) {
    for (krm_ulong i = 0; i < kElements; ++i) {
        CKRMCElement* const element = root.CreateElement(&error, "Ecu");
        element->CreateAttribute(&error, "Id")->SetValue(&error, IdOf(i));
        element->CreateAttribute(&error, "Offset")->SetValue(&error, OffsetOf(i));
        element->CreateAttribute(&error, "Name")->SetValue(&error, NameOf(i));
        element->CreateElement(&error, "Signal");
    }
}

// A description names the types of values, "Id[4]": here they are part of the name, so that both write the same.
void Build(pugi::xml_node root) {
    for (krm_ulong i = 0; i < kElements; ++i) {
        pugi::xml_node element = root.append_child("Ecu");
        element.append_attribute("Id[4]").set_value(IdOf(i));
        element.append_attribute("Offset[3]").set_value(OffsetOf(i));
        element.append_attribute("Name[1]").set_value(NameOf(i));
        element.append_child("Signal");
    }
}

struct StringWriter : pugi::xml_writer {
    std::string text;
    void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }
};

// As a description is: a line per tag, nothing indented, nothing escaped, no tag that closes itself.
constexpr unsigned kLikeADescription =
    pugi::format_indent | pugi::format_no_declaration | pugi::format_no_escapes | pugi::format_no_empty_element_tags;

void Save(const pugi::xml_document& document, StringWriter& writer) {
    document.save(writer, "", kLikeADescription);
}

void LibraryTree(benchmark::State& state) {
    for (auto _ : state) {
        CKRMError error;
        CKRMCElement root("Vehicle");
        Build(root, error);
        CKRMString text;
        root.Description(text);
        benchmark::DoNotOptimize(text.GetText());
        benchmark::ClobberMemory();
    }
}

/// The text with all line ends taken out: pugixml leaves an empty element on one line.
std::string OnOneLine(std::string text) {
    std::erase(text, '\n');
    return text;
}

bool BothWriteTheSame() {
    CKRMError error;
    CKRMCElement root("Vehicle");
    Build(root, error);
    CKRMString text;
    root.Description(text);
    pugi::xml_document document;
    Build(document.append_child("Vehicle"));
    StringWriter writer;
    Save(document, writer);
    return OnOneLine(text.GetText()) == OnOneLine(writer.text);
}

void PugixmlTree(benchmark::State& state) {
    if (!BothWriteTheSame()) {
        state.SkipWithError("the two documents differ");
        return;
    }
    for (auto _ : state) {
        pugi::xml_document document;
        Build(document.append_child("Vehicle"));
        StringWriter writer;
        Save(document, writer);
        benchmark::DoNotOptimize(writer.text.data());
        benchmark::ClobberMemory();
    }
}

// The three steps by themselves, to show where the time goes.

void LibraryBuildAndDestroy(benchmark::State& state) {
    for (auto _ : state) {
        CKRMError error;
        CKRMCElement root("Vehicle");
        Build(root, error);
        benchmark::DoNotOptimize(root);
        benchmark::ClobberMemory();
    }
}

void PugixmlBuildAndDestroy(benchmark::State& state) {
    for (auto _ : state) {
        pugi::xml_document document;
        Build(document.append_child("Vehicle"));
        benchmark::DoNotOptimize(document);
        benchmark::ClobberMemory();
    }
}

void LibraryDescribe(benchmark::State& state) {
    CKRMError error;
    CKRMCElement root("Vehicle");
    Build(root, error);
    for (auto _ : state) {
        CKRMString text;
        root.Description(text);
        benchmark::DoNotOptimize(text.GetText());
        benchmark::ClobberMemory();
    }
}

void PugixmlSave(benchmark::State& state) {
    pugi::xml_document document;
    Build(document.append_child("Vehicle"));
    for (auto _ : state) {
        StringWriter writer;
        Save(document, writer);
        benchmark::DoNotOptimize(writer.text.data());
        benchmark::ClobberMemory();
    }
}

/// The blocks that the tree consists of, in the order of its building, each written to once, and given back in the order of
/// its destruction: what no tree can avoid whose nodes and values are blocks of their own.
void BlocksAlone(benchmark::State& state) {
    std::vector<void*> blocks(10 * kElements);
    for (auto _ : state) {
        std::size_t count = 0;
        const auto add = [&](std::size_t size) {
            blocks[count] = ::operator new(size);
            std::memset(blocks[count], 0, size);
            ++count;
        };
        for (krm_ulong i = 0; i < kElements; ++i) {
            add(sizeof(CKRMCElement));
            add(sizeof(CKRMCAttribute));
            add(sizeof(krm_ulong));
            add(sizeof(CKRMCAttribute));
            add(sizeof(krm_long));
            add(sizeof(CKRMCAttribute));
            add(sizeof(CKRMString));
            if (const std::size_t length = std::strlen(NameOf(i)); length > std::string().capacity()) {
                add(length + 1);
            }
            add(sizeof(CKRMCElementGroup));
            add(sizeof(CKRMCElement));
        }
        benchmark::DoNotOptimize(blocks.data());
        benchmark::ClobberMemory();
        for (std::size_t i = 0; i < count; ++i) {
            ::operator delete(blocks[i]);
        }
    }
}

}  // namespace

void RegisterTrees() {
    const std::string tree = "tree of 10,000 elements: ";
    Compare(tree + "build, describe, destroy", LibraryTree, {{"pugixml", PugixmlTree, 1.5}});
    Compare(tree + "build, destroy", LibraryBuildAndDestroy,
            {{"pugixml", PugixmlBuildAndDestroy}, {"its blocks alone", BlocksAlone, 1.6}});
    Compare(tree + "describe", LibraryDescribe, {{"pugixml", PugixmlSave, 1.0}});
}

}  // namespace krm::bench
