// Texts come from files of strangers: what a terminal would obey instead of show is not passed on to it.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_CONTROL_CHARACTERS_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_CONTROL_CHARACTERS_H_

namespace diagnosis_session {

/// Whether it is one of ASCII's; plain char may be signed or not.
inline bool IsControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < ' ' || byte == 0x7F;
}

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_CONTROL_CHARACTERS_H_
