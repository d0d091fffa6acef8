#include "krm/messages/diag/j2534_config.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandJ2534Config>;
