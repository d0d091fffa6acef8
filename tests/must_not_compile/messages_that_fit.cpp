// compiles
// The commands that the sources beside this one get wrong, right: so each of them fails for its one fault.
#include "krm/framework/message.h"

class OfTheTable : public krm::MessageOf<OfTheTable, CKRMCBaseCmdAdaptDataSnd, "GetDTC"> {};
class OfItsOwn : public krm::MessageOf<OfItsOwn, CKRMCBaseCmdAdaptDataSnd, krm::CommandName("ReadPaintCode", 900)> {};

static_assert(OfTheTable::kCommandId == 2);
static_assert(OfItsOwn::kCommandId == 900);
