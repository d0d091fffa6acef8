// What a message is at a glance: its fields of the first level, lists folded to their count, and its trouble codes.
#ifndef KRM_CLI_OUTLINE_H_
#define KRM_CLI_OUTLINE_H_

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/input.h"

namespace krm_cli {

/// Takes the fields of a message, and keeps little of them however many there are.
class Outline {
public:
    enum class Kind { Value, List, Record };
    /// A field of the first level, or more of the same name.
    struct Entry {
        std::string name;
        Kind kind = Kind::Value;
        std::uint64_t count = 0;  ///< elements of a list
        std::string value;        ///< at most kMostOfValue bytes of it
        bool isCut = false;       ///< the value has more
    };

    static constexpr std::size_t kMostOfValue = 1000;
    static constexpr std::size_t kMostEntries = 256;
    static constexpr std::size_t kMostCodes = 8;

    void Begin();
    void Take(const FieldText& field) {
        // Most fields lie in the same element as the one before.
        if (!m_element.empty() && field.path.starts_with(m_element)) {
            if (field.path.ends_with(kCodeName)) {
                TakeCode(field);
            }
            return;
        }
        TakeOther(field);
    }

    /// Of fields whose paths begin so, those alone tell something new whose paths end with kCodeName. Empty for none.
    const std::string& Element() const { return m_element; }
    static constexpr std::string_view kCodeName = "m_strDTC";

    std::span<const Entry> Entries() const { return {m_entries.data(), m_entryCount}; }
    /// How many there are beyond kMostEntries.
    std::uint64_t MoreEntries() const { return m_moreEntries; }
    /// The first kMostCodes trouble codes, and how many there are.
    std::span<const std::string> Codes() const { return {m_codes.data(), m_codes.size()}; }
    std::uint64_t CodeCount() const { return m_codeCount; }

    /// What stands out, for people: "2 codes: P0301, P0420; m_bDTCType=1". Valid until Begin.
    const std::string& StandingOut();

private:
    Entry& Add(std::string_view name, Kind kind);
    void TakeOther(const FieldText& field);
    void TakeCode(const FieldText& field);

    std::vector<Entry> m_entries;  ///< with some behind m_entryCount, whose texts have memory for the next message's
    std::size_t m_entryCount = 0;
    std::uint64_t m_moreEntries = 0;
    std::vector<std::string> m_codes;
    std::uint64_t m_codeCount = 0;
    std::string m_standingOut;
    std::string m_element;  ///< how paths begin that tell nothing new: "Data[0]."
};

}  // namespace krm_cli

#endif  // KRM_CLI_OUTLINE_H_
