#include "krm/messages/auxiliary/viewer.h"

template class CKRMList<CKRMCDbHelpInfo>;
