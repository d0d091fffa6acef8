#include "krm/core/binary.h"

#include <cstring>
#include <new>

CKRMBinary::CKRMBinary() : m_puchBuffer(nullptr), m_uiPos(0), m_uiSize(0) {}

CKRMBinary::CKRMBinary(const CKRMBinary& other) : CKRMBinary() {
    CopyFrom(other);
}

CKRMBinary::~CKRMBinary() {
    delete[] m_puchBuffer;
}

const CKRMBinary& CKRMBinary::operator=(const CKRMBinary& other) {
    CopyFrom(other);
    return *this;
}

void CKRMBinary::CopyFrom(const CKRMBinary& other) {
    // All that is read of `other` before the old block goes: it may be this very object.
    const unsigned int position = other.m_uiPos;
    const unsigned int size = other.m_uiSize;
    const bool bytes = other.HoldsBytes();
    if (!bytes) {
        delete[] m_puchBuffer;
        m_puchBuffer = nullptr;
        m_uiSize = size;  // not 0 after SetBuffer(nullptr, size): the copy then counts as the original does
    } else if (!CreateBuffer(size)) {
        return;
    } else if (&other == this) {
        std::memset(m_puchBuffer, 0, size);
    } else {
        std::memcpy(m_puchBuffer, other.m_puchBuffer, size);
    }
    m_uiPos = position;
}

bool CKRMBinary::CreateBuffer(unsigned int size) {
    if (size == 0) {
        return false;
    }
    delete[] m_puchBuffer;
    m_uiPos = 0;
    m_uiSize = 0;
    m_puchBuffer = new (std::nothrow) unsigned char[size];
    if (m_puchBuffer == nullptr) {
        return false;
    }
    m_uiSize = size;
    return true;
}

void CKRMBinary::SetBuffer(unsigned char* block, unsigned int size) {
    m_puchBuffer = block;
    m_uiPos = 0;
    m_uiSize = size;
}

bool CKRMBinary::HoldsBytes() const {
    return m_puchBuffer != nullptr && m_uiSize != 0;
}

unsigned int CKRMBinary::BytesLeft() const {
    return m_uiPos < m_uiSize ? m_uiSize - m_uiPos : 0;
}

// Source and target are the caller's and may lie in the block itself, hence memmove.

bool CKRMBinary::Read(void* dest, unsigned int n) {
    if (dest == nullptr || n == 0 || !HoldsBytes() || BytesLeft() < n) {
        return false;
    }
    std::memmove(dest, m_puchBuffer + m_uiPos, n);
    m_uiPos += n;
    return true;
}

bool CKRMBinary::Write(const void* src, unsigned int n) {
    if (src == nullptr || n == 0) {
        return false;
    }
    if (HoldsBytes()) {
        if (BytesLeft() < n) {
            return false;
        }
        std::memmove(m_puchBuffer + m_uiPos, src, n);
    }
    m_uiPos += n;
    return true;
}

unsigned int CKRMBinary::GetSize() const {
    return m_uiSize;
}

unsigned int CKRMBinary::GetPos() const {
    return m_uiPos;
}
