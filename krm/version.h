// The library's version. CMake reads it from here, so that it stands once.
//
// The major number changes with the binary interface (it is in the shared libraries' names), the minor number with
// additions, the patch number with corrections.
#ifndef KRM_VERSION_H_
#define KRM_VERSION_H_

/// Changes with the binary interface.
#define KRM_VERSION_MAJOR 1
/// Changes with additions.
#define KRM_VERSION_MINOR 0
/// Changes with corrections.
#define KRM_VERSION_PATCH 0

/// One number to compare with, for example `#if KRM_VERSION >= 10200` for 1.2.0.
#define KRM_VERSION (KRM_VERSION_MAJOR * 10000 + KRM_VERSION_MINOR * 100 + KRM_VERSION_PATCH)

#endif  // KRM_VERSION_H_
