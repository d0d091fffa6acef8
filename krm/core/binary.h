// CKRMBinary: a byte block of fixed size with one cursor, to write raw data in one after the other and to read it out.
//
// No record or message holds one. Its layout is in docs/interface.md.
#ifndef KRM_CORE_BINARY_H_
#define KRM_CORE_BINARY_H_

#include "krm/core/types.h"

/// An owned block of bytes with one cursor for reading and writing.
///
/// Without a block it counts: Write stores nothing and only advances the cursor. Run a serialiser once to learn the size,
/// create the block, and run it again to fill the block:
///
///     CKRMBinary binary;
///     Serialise(binary);                      // counts
///     binary.CreateBuffer(binary.GetPos());
///     Serialise(binary);                      // fills
///
/// Blocks are allocated with `new unsigned char[]` and freed with `delete[]`; a block handed to SetBuffer must come from
/// `new unsigned char[]` too. In a program whose modules each have a runtime of their own (Windows, static runtime),
/// leave blocks to CreateBuffer.
///
/// No operation throws. One buffer is used by one thread at a time.
class KRM_API CKRMBinary {
public:
    /// No block, size and position 0.
    CKRMBinary();
    /// Copies size and position, and the bytes into a block of its own. If that block can't be allocated, the copy is as
    /// newly constructed: compare GetSize() with the original's.
    CKRMBinary(const CKRMBinary& other);
    /// Frees the block.
    virtual ~CKRMBinary();
    /// Frees the block, then copies as the copy constructor does.
    ///
    /// Don't assign a buffer to itself: its block is freed before it is copied. Size and position stay, but the bytes
    /// are lost and read as 0. Where two names may mean the same buffer, compare their addresses first.
    const CKRMBinary& operator=(const CKRMBinary& other);

    /// Replaces the block by one of `size` bytes, whose contents are whatever the memory holds, with the cursor at 0.
    /// False with nothing changed for a `size` of 0; false without a block when the memory can't be had: the old block is
    /// gone by then.
    bool CreateBuffer(unsigned int size);
    /// Takes over `block` of `size` bytes, with the cursor at 0. It now belongs to this object, which frees it.
    ///
    /// The block held before is NOT freed, by design: it leaks unless it was handed over with SetBuffer and its address
    /// kept. To replace a block from CreateBuffer call CreateBuffer again, or hand the new block to a fresh object.
    /// Handing over the same block once more only sets the cursor back.
    /// A null `block` leaves the object counting, whatever `size` says; so does a `size` of 0.
    /// REQUIRES: `block` is null or was allocated with `new unsigned char[size]`, and nobody else frees it.
    void SetBuffer(unsigned char* block, unsigned int size);

    /// Copies `n` bytes at the cursor to `dest` and advances the cursor. False with nothing read when `dest` is null,
    /// `n` is 0, there is no block, or fewer than `n` bytes are left.
    bool Read(void* dest, unsigned int n);
    /// Copies `n` bytes from `src` to the cursor and advances the cursor. False with nothing written when `src` is null,
    /// `n` is 0, or fewer than `n` bytes are left.
    /// Without a block it counts: `src` is not read, the cursor advances, wrapping at 2^32, and the result is true.
    bool Write(const void* src, unsigned int n);

    /// The block's size in bytes; 0 without one, unless SetBuffer gave a size to a null block.
    unsigned int GetSize() const;
    /// The cursor: the offset in bytes at which the next Read or Write begins. Beyond the size only while counting.
    unsigned int GetPos() const;

private:
    bool HoldsBytes() const;
    unsigned int BytesLeft() const;
    void CopyFrom(const CKRMBinary& other);

    unsigned char* m_puchBuffer;
    unsigned int m_uiPos;
    unsigned int m_uiSize;
};

#endif  // KRM_CORE_BINARY_H_
