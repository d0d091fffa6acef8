// error: TheTableHasThisCommandAlready
#include "krm/framework/message.h"

class Request : public krm::MessageOf<Request, CKRMCBaseCmdAdaptDataSnd, krm::CommandName("ReadPaintCode", 2)> {};

static_assert(Request::kCommandId == 2);
