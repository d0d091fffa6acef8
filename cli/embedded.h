// Files that are a part of the program. None of a file that was missing when the program was built.
#ifndef KRM_CLI_EMBEDDED_H_
#define KRM_CLI_EMBEDDED_H_

#include <span>
#include <string>
#include <string_view>

namespace krm_cli::embedded {

/// viewer/krm-viewer.html, in pieces.
std::span<const std::string_view> Viewer();
/// viewer/catalogue.json, in pieces.
std::span<const std::string_view> Catalogue();

/// The pieces as one.
inline std::string Whole(std::span<const std::string_view> pieces) {
    std::string whole;
    for (const std::string_view piece : pieces) {
        whole += piece;
    }
    return whole;
}

}  // namespace krm_cli::embedded

#endif  // KRM_CLI_EMBEDDED_H_
