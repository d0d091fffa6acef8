# What Doxygen reads of a header (FILTER_PATTERNS): the same declarations, in words that it understands.

# A head comment documents its file.
1s|^// |/// \\file\n/// |
1,/^#ifndef/s|^//\( .*\)\{0,1\}$|///\1|

# The overloads of a virtual operation are members like any others.
/KRM_OVERLOADS_[24](/,/));/{
    s/KRM_OVERLOADS_[24](//
    s/),\( *\/\/\/<.*\)\{0,1\}$/);\1/
    s/));/);/
}

# Every record and every message has a Dump, and all of them do the same.
s|^    void Dump(const krm::[A-Za-z]*Lines& line);$|    /// Writes the fields into the operation log, in order; krm/framework/dump.h says how.\n&|

# Which of two functions of this name a program gets is nothing that it names.
s|^inline namespace unchecked {$||
s|^}  // namespace$||

# Doxygen doesn't know the standard library's template.
s|^struct std::hash<CKRMString>|struct hash<CKRMString>|
