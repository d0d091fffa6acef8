#include "krm/tree/element.h"

#include <utility>

#include "krm/tree/element_group.h"
#include "krm/tree/internal/chain.h"
#include "krm/tree/internal/operation.h"

using namespace krm::tree;

CKRMCElement::CKRMCElement(const char* name)
    : CKRMCNode(kElementKind, name),
      m_pcFirstAttribute(nullptr),
      m_pcLastAttribute(nullptr),
      m_pcFirstGroup(nullptr),
      m_pcLastGroup(nullptr) {}

CKRMCElement::~CKRMCElement() {
    CKRMCElement::RemoveAll();
}

krm_ulong CKRMCElement::Description(CKRMString& out) {
    return Chain::Describe(*this, out);
}

void CKRMCElement::RemoveAll() {
    m_pcLastAttribute = nullptr;
    Chain::Destroy(std::exchange(m_pcFirstAttribute, nullptr));
    m_pcLastGroup = nullptr;
    Chain::Destroy(std::exchange(m_pcFirstGroup, nullptr));
}

CKRMCAttribute* CKRMCElement::CreateAttribute(CKRMError* error, const char* name) {
    Operation operation(error);
    if (name == nullptr) {
        operation.Fail(kNullArgument);
        return nullptr;
    }
    CKRMCAttribute* const existing = GetAttribute(operation.Error(), name);
    if (operation.Failed()) {
        return nullptr;
    }
    if (existing != nullptr) {
        return existing;
    }
    return Chain::AppendNew(operation, *this, m_pcFirstAttribute, m_pcLastAttribute, name);
}

bool CKRMCElement::RemoveAttribute(CKRMError* error, CKRMCAttribute* attribute) {
    Operation operation(error);
    return Chain::Remove(operation, m_pcFirstAttribute, m_pcLastAttribute, attribute, kNoSuchAttribute);
}

CKRMCAttribute* CKRMCElement::GetAttribute(CKRMError* error, const char* name) {
    Operation operation(error);
    if (name == nullptr) {
        operation.Fail(kNullArgument);
        return nullptr;
    }
    return Chain::Find(m_pcFirstAttribute, name);
}

CKRMCElementGroup* CKRMCElement::CreateElementGroup(CKRMError* error, const char* name) {
    Operation operation(error);
    if (name == nullptr) {
        operation.Fail(kNullArgument);
        return nullptr;
    }
    CKRMCElementGroup* const existing = GetElementGroup(operation.Error(), name);
    if (operation.Failed()) {
        return nullptr;
    }
    if (existing != nullptr) {
        return existing;
    }
    return Chain::AppendNew(operation, *this, m_pcFirstGroup, m_pcLastGroup, name);
}

bool CKRMCElement::RemoveElementGroup(CKRMError* error, CKRMCElementGroup* group) {
    Operation operation(error);
    return Chain::Remove(operation, m_pcFirstGroup, m_pcLastGroup, group, kNoSuchGroup);
}

CKRMCElementGroup* CKRMCElement::GetElementGroup(CKRMError* error, const char* name) {
    Operation operation(error);
    if (name == nullptr) {
        operation.Fail(kNullArgument);
        return nullptr;
    }
    return Chain::Find(m_pcFirstGroup, name);
}

CKRMCElement* CKRMCElement::CreateElement(CKRMError* error, const char* name) {
    Operation operation(error);
    if (name == nullptr) {
        operation.Fail(kNullArgument);
        return nullptr;
    }
    CKRMCElementGroup* const group = CreateElementGroup(operation.Error(), name);
    if (operation.Failed()) {
        return nullptr;
    }
    if (group == nullptr) {  // only an overriding CreateElementGroup gives neither a group nor an error
        operation.Fail(kNoSuchGroup);
        return nullptr;
    }
    CKRMCElement* const element = group->CreateElement(operation.Error());
    return operation.Failed() ? nullptr : element;
}

bool CKRMCElement::RemoveElement(CKRMError* error, CKRMCElement* element) {
    Operation operation(error);
    if (element == nullptr) {
        operation.Fail(kNullArgument);
        return false;
    }
    CKRMCElementGroup* const group = GetElementGroup(operation.Error(), element->GetName());
    if (operation.Failed()) {
        return false;
    }
    if (group == nullptr) {
        operation.Fail(kNoSuchGroup);
        return false;
    }
    return group->RemoveElement(operation.Error(), element);
}

CKRMCElement* CKRMCElement::GetFirstElement(CKRMError* error, const char* name) {
    Operation operation(error);
    if (name == nullptr) {
        operation.Fail(kNullArgument);
        return nullptr;
    }
    CKRMCElementGroup* const group = GetElementGroup(operation.Error(), name);
    if (operation.Failed() || group == nullptr) {
        return nullptr;
    }
    return group->GetFirstElement(operation.Error());
}

CKRMCElement* CKRMCElement::GetElementByAttribute(CKRMError* error, const char* name, CKRMCAttribute* attribute) {
    Operation operation(error);
    if (name == nullptr || attribute == nullptr) {
        operation.Fail(kNullArgument);
        return nullptr;
    }
    CKRMCElementGroup* const group = GetElementGroup(operation.Error(), name);
    if (operation.Failed() || group == nullptr) {
        return nullptr;
    }
    CKRMCElement* const element = group->GetElementByAttribute(operation.Error(), attribute);
    return operation.Failed() ? nullptr : element;
}
