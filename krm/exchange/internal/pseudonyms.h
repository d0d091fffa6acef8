// The values that a Redactor knows, where they occur in bytes, and what they become. krm/exchange/redact.h describes it.
#ifndef KRM_EXCHANGE_INTERNAL_PSEUDONYMS_H_
#define KRM_EXCHANGE_INTERNAL_PSEUDONYMS_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace krm::redacting {

/// Values and their pseudonyms. Letters of ASCII in upper and lower case are the same here; a pseudonym takes the case of
/// what it replaces.
class Values {
public:
    /// Pseudonyms are made from the secret, or from random numbers of the system where it is empty.
    explicit Values(std::string_view secret);

    /// Whether some of the bytes can't be text, in whatever encoding.
    static bool IsBinary(std::string_view bytes);
    /// How many bytes of the value a pseudonym replaces.
    static std::size_t CountReplaced(std::string_view value);

    /// Adds a value. REQUIRES: kMinRedactedLength bytes of it are replaced.
    void Add(std::string_view value);
    /// Adds what looks like a VIN in the bytes, as text or as hexadecimal.
    void AddVins(std::string_view bytes);

    /// Replaces all values in the bytes and counts them. Where Error isn't empty afterwards, there may be values left.
    std::uint64_t Replace(std::string& bytes);
    /// What the bytes become where they stand alone, as a value or not.
    std::string Alone(std::string_view bytes);
    /// One of as many as one likes that a value could become, without a look at other values.
    std::string Candidate(std::string_view value, std::uint64_t attempt) const;

    /// Why something could not be replaced; stays.
    const std::string& Error() const { return m_error; }

private:
    struct Known {
        std::string value;      // in upper case
        std::string pseudonym;  // empty until it is asked for
    };
    struct Match {
        std::size_t known;
        std::size_t start;
        bool isHex;
    };

    std::vector<Match> Find(std::string_view bytes) const;
    /// Writes what the match in `bytes` becomes, but for what is `done` already; says whether that was anything.
    static bool Write(const Match& match, std::string_view pseudonym, std::string_view bytes, std::string& replaced,
                      std::vector<bool>& done);
    /// What is given away instead; empty, and an error, where there is nothing left.
    const std::string& PseudonymOf(std::size_t known);

    std::array<std::uint64_t, 2> m_key;
    std::vector<Known> m_known;
    std::unordered_map<std::string, std::size_t> m_byValue;
    std::unordered_map<std::uint32_t, std::vector<std::size_t>> m_byStart;  // by the first four bytes
    std::unordered_set<std::string> m_taken;                                // pseudonyms
    std::string m_error;
};

}  // namespace krm::redacting

#endif  // KRM_EXCHANGE_INTERNAL_PSEUDONYMS_H_
