// Texts come from files of strangers: what a terminal would obey instead of show is not passed on to it.
#ifndef KRM_CLI_TERMINAL_CONTROL_CHARACTERS_H_
#define KRM_CLI_TERMINAL_CONTROL_CHARACTERS_H_

namespace terminal {

/// Whether it is one of ASCII's; plain char may be signed or not.
inline bool IsControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < ' ' || byte == 0x7F;
}

}  // namespace terminal

#endif  // KRM_CLI_TERMINAL_CONTROL_CHARACTERS_H_
