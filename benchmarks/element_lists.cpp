#include "benchmarks/element_lists.h"

#include <memory>

#include "benchmarks/element_values.h"
#include "benchmarks/list_operations.h"
#include "krm/adaptation_data.h"
#include "tests/support/all_classes.h"

namespace krm::bench {
namespace {

constexpr int kElements = 64;  // more than an answer has of most things

template <class List, class T>
constexpr AnyList AnyListOf() {
    return {kElements,
            []() -> void* {
                auto* const list = new List;
                unsigned number = 0;
                for (int i = 0; i < kElements; ++i) {
                    SetFields(AppendNew(*list), number);
                }
                return list;
            },
            []() -> void* { return new List; },
            [](const void* list) -> void* { return new List(*static_cast<const List*>(list)); },
            [](void* list) { delete static_cast<List*>(list); },
            [](void* list, const void* others) {
                for (const T& element : *static_cast<const List*>(others)) {
                    Append(*static_cast<List*>(list), element);
                }
            },
            [](const void* list) {
                for (const T& element : *static_cast<const List*>(list)) {
                    Keep(element);
                }
            },
            [](void* list) { Empty(*static_cast<List*>(list)); }};
}

template <class T>
ElementLists ListsOf(const char* element) {
    static_assert(kCopiedInOneStep<T>, "a class of the library says so beside its extern list");
    return {element, {AnyListOf<CKRMList<T>, T>(), AnyListOf<std::list<T>, T>()}};
}

}  // namespace

const std::vector<ElementLists>& AllElementLists() {
    static const std::vector<ElementLists> lists = {
#define KRM_ELEMENT_LISTS(Class, kind) ListsOf<Class>(#Class),
        KRM_ALL_LIST_ELEMENTS(KRM_ELEMENT_LISTS)
#undef KRM_ELEMENT_LISTS
    };
    return lists;
}

Pass ListPass(const AnyList& list, std::size_t operation) {
    const std::shared_ptr<void> model(list.filled(), list.destroy);
    const std::shared_ptr<void> changing(list.empty(), list.destroy);
    const auto append = [=] { list.append(changing.get(), model.get()); };
    const auto clear = [=] { list.clear(changing.get()); };
    const auto copied = std::make_shared<void*>();
    Pass pass;
    pass.operations = list.elements;
    switch (operation) {
        case 0:
            pass.run = append;
            pass.undo = clear;
            break;
        case 1:
            pass.run = [=] { *copied = list.copy(model.get()); };
            pass.undo = [=] { list.destroy(*copied); };
            break;
        case 2:
            pass.run = [=] { list.walk(model.get()); };
            break;
        default:
            append();
            pass.run = clear;
            pass.undo = append;
    }
    return pass;
}

}  // namespace krm::bench
