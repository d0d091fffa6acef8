// error: NoSuchCommandInTheTable
#include "krm/framework/message.h"

class Request : public krm::MessageOf<Request, CKRMCBaseUccAdaptDataSnd, "GetDTC"> {};

static_assert(Request::kCommandId == 2);
