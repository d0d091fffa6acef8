// error: krm needs C++20
// Compiled as C++17: the message comes first, and nothing else is complained of but the missing header that ends it.
#include "krm/adaptation_data.h"
