// CKRMBinary against a plain vector of bytes.
#include <cstring>
#include <memory>
#include <optional>

#include "fuzz/support/input.h"
#include "krm/core/binary.h"

namespace {

using krm::fuzz::Input;

/// A buffer and what it must hold. A byte that nobody has written has no known value.
struct Pair {
    CKRMBinary buffer;
    std::vector<std::optional<std::uint8_t>> bytes;  // empty: it counts
    unsigned size = 0;
    unsigned position = 0;
    unsigned char* handedOver = nullptr;  // the block, where this target knows its address

    bool Counts() const { return bytes.empty(); }
    std::size_t Left() const { return bytes.size() - position; }

    void CheckState() const {
        KRM_FUZZ_CHECK(buffer.GetSize() == size);
        KRM_FUZZ_CHECK(buffer.GetPos() == position);
    }
    /// What a copy of `other` is.
    void BecomeCopyOf(const Pair& other) {
        bytes = other.bytes;
        size = other.size;
        position = other.position;
        handedOver = nullptr;
    }
};

void Create(Pair& pair, Input& input) {
    const unsigned size = input.Number<std::uint16_t>() % 5000U;
    const bool created = pair.buffer.CreateBuffer(size);
    KRM_FUZZ_CHECK(created == (size != 0));
    if (created) {
        pair.bytes.assign(size, std::nullopt);
        pair.size = size;
        pair.position = 0;
        pair.handedOver = nullptr;
    }
}

void Set(Pair& pair, Input& input) {
    // The block held before is the caller's to free; one from CreateBuffer can't be, so it is handed back first.
    if (!pair.Counts() && pair.handedOver == nullptr) {
        return;
    }
    delete[] pair.handedOver;
    const std::vector<std::uint8_t> content = input.Bytes(40);
    pair.position = 0;
    if (content.empty()) {
        // Without a block, or with one of no bytes: it counts.
        pair.handedOver = input.Flag() ? new unsigned char[1] : nullptr;
        pair.size = pair.handedOver != nullptr ? 0 : input.Number<std::uint16_t>();
        pair.buffer.SetBuffer(pair.handedOver, pair.size);
        pair.bytes.clear();
        return;
    }
    pair.size = static_cast<unsigned>(content.size());
    pair.handedOver = new unsigned char[content.size()];
    std::memcpy(pair.handedOver, content.data(), content.size());
    pair.buffer.SetBuffer(pair.handedOver, pair.size);
    pair.bytes.assign(content.begin(), content.end());
}

void Read(Pair& pair, Input& input) {
    const bool huge = input.Flag();
    const unsigned count = huge ? input.Number<std::uint32_t>() : input.Byte();
    // A target of just the right size: the sanitizer sees a byte too many.
    const std::size_t room = pair.Counts() ? 0 : std::min<std::size_t>(count, pair.Left());
    const std::unique_ptr<std::uint8_t[]> target(new std::uint8_t[room + 1]);
    target[room] = 0xA5;
    const bool toNull = input.Byte() % 16 == 15;
    const bool read = pair.buffer.Read(toNull ? nullptr : target.get(), count);
    KRM_FUZZ_CHECK(read == (!toNull && count != 0 && !pair.Counts() && count <= pair.Left()));
    KRM_FUZZ_CHECK(target[room] == 0xA5);
    if (!read) {
        return;
    }
    for (unsigned i = 0; i < count; ++i) {
        const std::optional<std::uint8_t>& expected = pair.bytes[pair.position + i];
        KRM_FUZZ_CHECK(!expected || *expected == target[i]);
    }
    pair.position += count;
}

void Write(Pair& pair, Input& input) {
    std::vector<std::uint8_t> source = input.Bytes(60);
    const bool fromNull = input.Byte() % 16 == 15;
    auto count = static_cast<unsigned>(source.size());
    if (pair.Counts() && input.Flag()) {
        count = input.Number<std::uint32_t>();  // nothing is read of the source
        source.resize(1);
    }
    const bool written = pair.buffer.Write(fromNull ? nullptr : source.data(), count);
    const bool sourceIsNull = fromNull || source.data() == nullptr;
    KRM_FUZZ_CHECK(written == (!sourceIsNull && count != 0 && (pair.Counts() || count <= pair.Left())));
    if (!written) {
        return;
    }
    if (!pair.Counts()) {
        std::copy(source.begin(), source.end(), pair.bytes.begin() + pair.position);
    }
    pair.position += count;  // wraps at 2^32 while counting
}

void Step(Pair* pairs, Input& input) {
    Pair& pair = pairs[input.Flag() ? 1 : 0];
    Pair& other = pairs[&pair == pairs ? 1 : 0];
    switch (input.UpTo(7)) {
        case 0:
            Create(pair, input);
            break;
        case 1:
            Set(pair, input);
            break;
        case 2:
            Read(pair, input);
            break;
        case 3:
        case 4:
            Write(pair, input);
            break;
        case 5:
            pair.buffer = other.buffer;
            pair.BecomeCopyOf(other);
            break;
        case 6: {
            const CKRMBinary& itself = pair.buffer;
            pair.buffer = itself;
            pair.bytes.assign(pair.bytes.size(), std::uint8_t{0});
            pair.handedOver = nullptr;
            break;
        }
        default: {
            // A copy goes on from the same position, on bytes of its own.
            Pair copy{CKRMBinary(pair.buffer), {}, 0, 0, nullptr};
            copy.BecomeCopyOf(pair);
            copy.CheckState();
            Write(copy, input);
            Read(copy, input);
            copy.CheckState();
            break;
        }
    }
    pair.CheckState();
    other.CheckState();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    Pair pairs[2];
    while (!input.IsEmpty()) {
        Step(pairs, input);
    }
    // All that is left, to the end and one byte beyond.
    for (Pair& pair : pairs) {
        std::uint8_t byte = 0;
        while (!pair.Counts() && pair.Left() != 0) {
            KRM_FUZZ_CHECK(pair.buffer.Read(&byte, 1));
            KRM_FUZZ_CHECK(pair.bytes[pair.position].value_or(byte) == byte);
            ++pair.position;
        }
        KRM_FUZZ_CHECK(!pair.buffer.Read(&byte, 1));
        pair.CheckState();
    }
    return 0;
}
