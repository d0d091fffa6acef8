// error: TheTableHasThisCommandAlready
#include "krm/framework/message.h"

class Request : public krm::MessageOf<Request, CKRMCBaseCmdAdaptDataSnd, krm::CommandName("GetDTC", 900)> {};

static_assert(Request::kCommandId == 900);
