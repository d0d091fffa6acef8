// The operations that both sides of a list's benchmark have, under one name.
#ifndef KRM_BENCHMARKS_LIST_OPERATIONS_H_
#define KRM_BENCHMARKS_LIST_OPERATIONS_H_

#include <list>

#include "krm/core/list.h"

namespace krm::bench {

template <class T>
void Append(CKRMList<T>& list, const T& element) {
    list.AddTail(element);
}
template <class T>
void Append(std::list<T>& list, const T& element) {
    list.push_back(element);
}

template <class T>
T& AppendNew(CKRMList<T>& list) {
    return *CKRMListIterator<T>(list.AddTail(T()));
}
template <class T>
T& AppendNew(std::list<T>& list) {
    return list.emplace_back();
}

template <class T>
void Empty(CKRMList<T>& list) {
    list.RemoveAll();
}
template <class T>
void Empty(std::list<T>& list) {
    list.clear();
}

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_LIST_OPERATIONS_H_
