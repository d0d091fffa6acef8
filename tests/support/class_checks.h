// The checks of tests/support/value_checks.h for many classes at once; a failure names its class.
#ifndef KRM_TESTS_SUPPORT_CLASS_CHECKS_H_
#define KRM_TESTS_SUPPORT_CLASS_CHECKS_H_

#include <gtest/gtest.h>

#include <type_traits>
#include <typeinfo>

#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "tests/support/value_checks.h"

namespace krm::test {

template <class Element>
void ExpectElement() {
    SCOPED_TRACE(typeid(Element).name());
    ExpectPlainValue<Element>();
    ExpectCopiedIntoLists<Element>();
}

/// Checks records that have log lines of their own: plain values, alone and in lists.
template <class... Records>
void ExpectRecords() {
    static_assert((std::is_base_of_v<CKRMCBaseAdaptDataStructure, Records> && ...));
    (ExpectElement<Records>(), ...);
}

/// Checks list elements without base and without virtual table.
template <class... Elements>
void ExpectPlainElements() {
    static_assert(!(std::is_polymorphic_v<Elements> || ...));
    (ExpectElement<Elements>(), ...);
}

/// Checks request and answer of a diagnostic command: bases, type and ID, plain values.
template <class Request, class Answer>
void ExpectDiagnosticCommand(krm_ulong id) {
    static_assert(std::is_base_of_v<CKRMCBaseCmdAdaptDataSnd, Request>);
    static_assert(std::is_base_of_v<CKRMCBaseCmdAdaptDataRcv, Answer>);
    SCOPED_TRACE(typeid(Request).name());
    ExpectTypeAndId<Request>(1, id);
    ExpectTypeAndId<Answer>(1, id);
    ExpectPlainValue<Request>();
    ExpectPlainValue<Answer>();
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_CLASS_CHECKS_H_
