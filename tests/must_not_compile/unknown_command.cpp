// error: NoSuchCommandInTheTable
#include "krm/framework/commands.h"

static_assert(krm::CommandId(krm::CommandFamily::Diagnostic, "GetDtc") == 2);
