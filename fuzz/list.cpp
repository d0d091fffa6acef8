// CKRMList against a std::vector: of numbers, of records of the library, and of elements that are counted.
#include <climits>

#include "fuzz/support/input.h"
#include "krm/core/list.h"
#include "krm/messages/diag/display.h"
#include "krm/platform/platform.h"

namespace {

using krm::fuzz::Input;

constexpr std::size_t kMostElements = 48;

/// An element with memory of its own. Its class knows how many there are and in which order they died.
class Counted {
public:
    Counted() { ++s_alive; }
    explicit Counted(krm_ulong value) : m_value(new krm_ulong(value)) { ++s_alive; }
    Counted(const Counted& other) : Counted(other.Value()) {}
    Counted& operator=(const Counted& other) {
        const krm_ulong value = other.Value();  // `other` may be this very element
        delete m_value;
        m_value = new krm_ulong(value);
        return *this;
    }
    ~Counted() {
        s_died.push_back(Value());
        --s_alive;
        delete m_value;
    }

    krm_ulong Value() const { return m_value == nullptr ? 0 : *m_value; }

    static std::size_t s_alive;
    static std::vector<krm_ulong> s_died;

private:
    krm_ulong* m_value = nullptr;
};
std::size_t Counted::s_alive = 0;
std::vector<krm_ulong> Counted::s_died;

// An element of each kind from a number, and the number again.
template <class T>
T Make(krm_ulong number) {
    return T(number);
}
template <>
unsigned char Make(krm_ulong number) {
    return static_cast<unsigned char>(number);
}
template <>
CKRMCCommandDispData Make(krm_ulong number) {
    CKRMCCommandDispData record;
    record.m_ulRawData = number;
    record.m_strDataPhys = std::to_string(number).c_str();
    return record;
}
krm_ulong NumberOf(krm_ulong element) {
    return element;
}
krm_ulong NumberOf(const Counted& element) {
    return element.Value();
}
krm_ulong NumberOf(const CKRMCCommandDispData& element) {
    KRM_FUZZ_CHECK(element.m_strDataPhys.Compare(std::to_string(element.m_ulRawData).c_str()) == 0);
    return element.m_ulRawData;
}

template <class T>
class Pair {
public:
    std::size_t Size() const { return m_model.size(); }

    void Step(Pair& other, Input& input) {
        switch (input.UpTo(11)) {
            case 0:
            case 1:
                Add(Make<T>(input.Byte()));
                break;
            case 2:
                if (!m_model.empty()) {
                    Add(m_list[static_cast<int>(input.UpTo(Size() - 1))]);  // an element of the list itself
                }
                break;
            case 3:
                Insert(Index(input), Make<T>(input.Byte()));
                break;
            case 4:
                if (!m_model.empty()) {
                    const auto own = static_cast<int>(input.UpTo(Size() - 1));
                    Insert(Index(input), m_list.GetAt(own));
                }
                break;
            case 5:
            case 6:
                Remove(Index(input));
                break;
            case 7:
                RemoveAll();
                break;
            case 8:
                Copy(other, input);
                break;
            case 9:
                if (Size() + other.Size() <= kMostElements) {
                    m_list.AddTail(&other.m_list);
                    AppendModelOf(other);
                }
                break;
            case 10:
                Access(input);
                break;
            default:
                WalkFrom(input);
                break;
        }
        Check();
        other.Check();
    }

    /// Every way through the list shows the model.
    void Check() {
        const CKRMList<T>& constant = m_list;
        KRM_FUZZ_CHECK(m_list.GetCount() == Count());
        KRM_FUZZ_CHECK((m_list.GetHeadPosition() == nullptr) == m_model.empty());
        KRM_FUZZ_CHECK((m_list.GetTailPosition() == nullptr) == m_model.empty());
        _SKRMPOSITION* position = m_list.GetHeadPosition();
        for (Entry& entry : m_model) {
            // A position stays what it is as long as its element lives, and is the element's address.
            KRM_FUZZ_CHECK(position != nullptr && (entry.position == nullptr || entry.position == position));
            entry.position = position;
            _SKRMPOSITION* again = position;
            KRM_FUZZ_CHECK(NumberOf(constant.GetNext(again)) == entry.number);
            const T* const element = m_list.GetNextPtr(position);
            KRM_FUZZ_CHECK(again == position);
            KRM_FUZZ_CHECK(static_cast<const void*>(element) == entry.position);
        }
        KRM_FUZZ_CHECK(position == nullptr);
        position = m_list.GetTailPosition();
        for (auto entry = m_model.rbegin(); entry != m_model.rend(); ++entry) {
            KRM_FUZZ_CHECK(position == entry->position);
            _SKRMPOSITION* again = position;
            KRM_FUZZ_CHECK(NumberOf(m_list.GetPrev(again)) == entry->number);
            KRM_FUZZ_CHECK(static_cast<const void*>(constant.GetPrevPtr(position)) == entry->position);
            KRM_FUZZ_CHECK(again == position);
        }
        KRM_FUZZ_CHECK(position == nullptr);
        std::size_t i = 0;
        for (const T& element : constant) {
            KRM_FUZZ_CHECK(i < Size() && NumberOf(element) == m_model[i].number);
            ++i;
        }
        KRM_FUZZ_CHECK(i == Size());
    }

    void RemoveAll() {
        Counted::s_died.clear();
        m_list.RemoveAll();
        CheckDied();
        m_model.clear();
        m_tooFew = 0;
    }

private:
    struct Entry {
        krm_ulong number;
        _SKRMPOSITION* position;  // null until it is known
    };

    /// Below the number of elements once an empty list was told to remove at a negative index.
    int Count() const { return static_cast<int>(Size()) - m_tooFew; }

    /// Around the list's ends mostly, and the ends of int.
    int Index(Input& input) const {
        const auto byte = input.Byte();
        switch (byte) {
            case 255:
                return INT_MIN;
            case 254:
                return INT_MAX;
            default:
                return static_cast<int>(byte % (Size() + 6)) - 3;
        }
    }

    void Add(const T& element) {
        if (Size() >= kMostElements) {
            return;
        }
        const krm_ulong number = NumberOf(element);
        m_model.push_back({number, m_list.AddTail(element)});
        KRM_FUZZ_CHECK(m_model.back().position == m_list.GetTailPosition());
    }

    void Insert(int index, const T& element) {
        if (Size() >= kMostElements) {
            return;
        }
        const krm_ulong number = NumberOf(element);
        m_list.InsertAt(index, element);
        if (m_model.empty() || index >= Count()) {
            m_model.push_back({number, nullptr});
        } else {
            m_model.insert(m_model.begin() + std::max(index, 0), {number, nullptr});
        }
    }

    void Remove(int index) {
        if (index < Count() && Count() <= 1 && Size() > 1) {
            return;  // the count is wrong since a removal from the empty list; this would lose elements
        }
        const int before = Count();
        m_list.RemoveAt(index);
        if (index >= before) {
            return;
        }
        if (m_model.empty()) {
            ++m_tooFew;
        } else {
            m_model.erase(m_model.begin() + std::max(index, 0));
        }
    }

    void Copy(Pair& other, Input& input) {
        switch (input.UpTo(2)) {
            case 0: {
                Counted::s_died.clear();
                m_list = other.m_list;
                CheckDied();
                m_model.clear();
                m_tooFew = 0;
                AppendModelOf(other);
                break;
            }
            case 1: {
                const CKRMList<T>& itself = m_list;
                m_list = itself;
                m_model.clear();
                m_tooFew = 0;
                break;
            }
            default: {
                const CKRMList<T> copy(m_list);
                KRM_FUZZ_CHECK(copy.GetCount() == static_cast<int>(Size()));
                auto entry = m_model.begin();
                for (const T& element : copy) {
                    KRM_FUZZ_CHECK(NumberOf(element) == entry->number);
                    KRM_FUZZ_CHECK(static_cast<const void*>(&element) != entry->position);
                    ++entry;
                }
                break;
            }
        }
    }

    void AppendModelOf(const Pair& other) {
        for (std::size_t i = 0, count = other.Size(); i < count; ++i) {
            m_model.push_back({other.m_model[i].number, nullptr});
        }
    }

    /// Elements died from head to tail. (Elements that only stood in for an argument died before or after.)
    void CheckDied() const {
        if constexpr (std::is_same_v<T, Counted>) {
            KRM_FUZZ_CHECK(Counted::s_died.size() >= Size());
            for (std::size_t i = 0; i < Size(); ++i) {
                KRM_FUZZ_CHECK(Counted::s_died[i] == m_model[i].number);
            }
        }
    }

    void Access(Input& input) {
        if (m_model.empty()) {
            KRM_FUZZ_CHECK(m_list.GetAtPtr(-static_cast<int>(input.Byte())) == nullptr);
            return;
        }
        const auto beyond = static_cast<int>(Size());
        KRM_FUZZ_CHECK(m_list.GetAtPtr(beyond) == nullptr);
        const int index = std::min(Index(input), beyond - 1);
        Entry& entry = m_model[static_cast<std::size_t>(std::max(index, 0))];
        KRM_FUZZ_CHECK(static_cast<const void*>(m_list.GetAtPtr(index)) == entry.position);
        KRM_FUZZ_CHECK(&m_list.GetAt(index) == m_list.GetAtPtr(index));
        KRM_FUZZ_CHECK(&m_list[index] == m_list.GetAtPtr(index));
        m_list[index] = Make<T>(input.Byte());
        entry.number = NumberOf(*m_list.GetAtPtr(index));
    }

    /// Some steps there and back from any element, writing through the references.
    void WalkFrom(Input& input) {
        if (m_model.empty()) {
            return;
        }
        std::size_t at = input.UpTo(Size() - 1);
        _SKRMPOSITION* position = m_model[at].position;
        for (std::size_t steps = input.UpTo(7); steps > 0 && position != nullptr; --steps) {
            Entry& entry = m_model[at];
            KRM_FUZZ_CHECK(position == entry.position);
            const bool forward = input.Flag();
            T& element = forward ? m_list.GetNext(position) : m_list.GetPrev(position);
            element = Make<T>(input.Byte());
            entry.number = NumberOf(element);
            if (forward ? at + 1 == Size() : at == 0) {
                KRM_FUZZ_CHECK(position == nullptr);
            } else {
                at = forward ? at + 1 : at - 1;
            }
        }
    }

    CKRMList<T> m_list;
    std::vector<Entry> m_model;
    int m_tooFew = 0;
};

template <class T>
void Run(Input& input) {
    Pair<T> pairs[2];
    while (!input.IsEmpty()) {
        const std::size_t which = input.UpTo(1);
        pairs[which].Step(pairs[1 - which], input);
        if constexpr (std::is_same_v<T, Counted>) {
            KRM_FUZZ_CHECK(Counted::s_alive == pairs[0].Size() + pairs[1].Size());
        }
    }
    pairs[0].RemoveAll();
    pairs[0].Check();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    switch (input.UpTo(3)) {
        case 0:
            Run<krm_ulong>(input);
            break;
        case 1:
            Run<unsigned char>(input);
            break;
        case 2:
            Run<CKRMCCommandDispData>(input);
            break;
        default:
            Run<Counted>(input);
            Counted::s_died.clear();
            KRM_FUZZ_CHECK(Counted::s_alive == 0);
            break;
    }
    return 0;
}
