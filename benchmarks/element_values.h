// Values for the elements of lists, whatever their class.
#ifndef KRM_BENCHMARKS_ELEMENT_VALUES_H_
#define KRM_BENCHMARKS_ELEMENT_VALUES_H_

namespace krm::bench {

/// Gives every field a value that `number` decides; every third text is too long to be held inline, and nested lists have
/// two elements. Defined for the classes that the library's lists hold.
template <class T>
void SetFields(T& it, unsigned& number);

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_ELEMENT_VALUES_H_
