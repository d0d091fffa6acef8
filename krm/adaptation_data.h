// Every exported class of the library. Start here; include single headers instead where compile time matters.
#ifndef KRM_ADAPTATION_DATA_H_
#define KRM_ADAPTATION_DATA_H_

// Lists, strings, the message base, the error object, the operation log.
#include "krm/core/list.h"
#include "krm/platform/platform.h"

// Bases of records and messages, the table of commands.
#include "krm/framework/commands.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"

// Signal converters.
#include "krm/convert/converter.h"
#include "krm/convert/specialised.h"

// Diagnostic commands and their records, by function area.
#include "krm/messages/diag/display.h"

#endif  // KRM_ADAPTATION_DATA_H_
