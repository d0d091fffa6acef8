// Every class that lists hold, in a CKRMList and in a std::list.
#ifndef KRM_BENCHMARKS_ELEMENT_LISTS_H_
#define KRM_BENCHMARKS_ELEMENT_LISTS_H_

#include <array>
#include <string>
#include <vector>

#include "benchmarks/pass.h"

namespace krm::bench {

/// What is done with a list of a class that the caller doesn't know.
struct AnyList {
    int elements;       ///< of a filled list
    void* (*filled)();  ///< a new list, all fields of whose elements are set
    void* (*empty)();   ///< a new list without elements
    void* (*copy)(const void* list);
    void (*destroy)(void* list);
    void (*append)(void* list, const void* others);  ///< one element after the other
    void (*walk)(const void* list);
    void (*clear)(void* list);
};

/// The lists of one class: the library's, then std::list. Their elements are equal.
struct ElementLists {
    std::string element;
    std::array<AnyList, 2> lists;
};

const std::vector<ElementLists>& AllElementLists();

inline constexpr std::array<const char*, 4> kListOperations = {"append", "copy", "walk", "clear"};

/// The pass of one of kListOperations.
Pass ListPass(const AnyList& list, std::size_t operation);

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_ELEMENT_LISTS_H_
