// What stands in the page of krm view between the tags of its element for data.
#ifndef KRM_CLI_VIEW_PAGE_H_
#define KRM_CLI_VIEW_PAGE_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace krm_cli {

/// A file's name as a string of JSON in which nothing ends an element.
std::string NameForPage(std::string_view name);

/// Bytes as Base64, piece by piece.
class Base64 {
public:
    void Take(std::string_view bytes, std::string& out);
    void End(std::string& out);

private:
    std::uint32_t m_bits = 0;
    unsigned m_count = 0;  ///< bytes in m_bits
};

}  // namespace krm_cli

#endif  // KRM_CLI_VIEW_PAGE_H_
