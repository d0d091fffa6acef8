#include "krm/tree/element_group.h"

#include <utility>

#include "krm/tree/internal/chain.h"
#include "krm/tree/internal/operation.h"

using namespace krm::tree;

CKRMCElementGroup::CKRMCElementGroup(const char* name)
    : CKRMCNode(kElementGroupKind, name), m_pcFirstElement(nullptr), m_pcLastElement(nullptr) {}

CKRMCElementGroup::~CKRMCElementGroup() {
    m_pcLastElement = nullptr;
    Chain::Destroy(std::exchange(m_pcFirstElement, nullptr));
}

krm_ulong CKRMCElementGroup::Description(CKRMString& out) {
    return Chain::Describe(*this, out);
}

CKRMCElement* CKRMCElementGroup::CreateElement(CKRMError* error) {
    Operation operation(error);
    return Chain::AppendNew(operation, *this, m_pcFirstElement, m_pcLastElement, GetName());
}

bool CKRMCElementGroup::RemoveElement(CKRMError* error, CKRMCElement* element) {
    Operation operation(error);
    return Chain::Remove(operation, m_pcFirstElement, m_pcLastElement, element, kNoSuchElement);
}

CKRMCElement* CKRMCElementGroup::GetFirstElement(CKRMError* error) {
    const Operation operation(error);
    return m_pcFirstElement;
}

CKRMCElement* CKRMCElementGroup::GetElementByAttribute(CKRMError* error, CKRMCAttribute* attribute) {
    Operation operation(error);
    if (attribute == nullptr) {
        operation.Fail(kNullArgument);
        return nullptr;
    }
    for (CKRMCNode* node = m_pcFirstElement; node != nullptr; node = node->GetNext()) {
        auto* const element = static_cast<CKRMCElement*>(node);
        CKRMCAttribute* const candidate = element->GetAttribute(operation.Error(), attribute->GetName());
        if (operation.Failed() || candidate == nullptr) {
            continue;
        }
        if (candidate->CompareValue(operation.Error(), attribute) && !operation.Failed()) {
            return element;
        }
    }
    return nullptr;
}
