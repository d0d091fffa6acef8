// Linked into every program of the guide: what it writes to standard output and to standard error comes in the order in
// which it is written, though both go into one file. Wine buffers standard error, too.
#include <cstdio>

namespace {

const int kUnbuffered = std::setvbuf(stdout, nullptr, _IONBF, 0) + std::setvbuf(stderr, nullptr, _IONBF, 0);

}  // namespace
