#include "krm/tree/node.h"

#include "krm/tree/internal/chain.h"

CKRMCNode::CKRMCNode(krm_ulong kind, const char* name)
    : m_ulKind(kind), m_pcNext(nullptr), m_pcPrev(nullptr), m_pcParent(nullptr) {
    if (name != nullptr) {
        m_strName = name;
    }
}

CKRMCNode::~CKRMCNode() {
    krm::tree::Chain::Destroy(m_pcNext);
}

krm_ulong CKRMCNode::Description(CKRMString&) {
    return 0;
}
