// Every exported class of the library. Start here; include single headers instead where compile time matters.
#ifndef KRM_ADAPTATION_DATA_H_
#define KRM_ADAPTATION_DATA_H_

// Lists, byte buffer, strings, the message base, the error object, the operation log.
#include "krm/core/binary.h"
#include "krm/core/error_codes.h"
#include "krm/core/list.h"
#include "krm/platform/platform.h"

// Bases of records and messages, the table of commands.
#include "krm/framework/commands.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"

// Signal converters.
#include "krm/convert/conversion_types.h"
#include "krm/convert/converter.h"
#include "krm/convert/specialised.h"

// Diagnostic commands by function area, and the records that several areas share.
#include "krm/messages/diag/active_test.h"
#include "krm/messages/diag/can_bus.h"
#include "krm/messages/diag/cancel_codes.h"
#include "krm/messages/diag/customize.h"
#include "krm/messages/diag/data_item.h"
#include "krm/messages/diag/data_monitor.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/event_records.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/freeze_frames.h"
#include "krm/messages/diag/j2534_config.h"
#include "krm/messages/diag/memory.h"
#include "krm/messages/diag/on_board_monitor.h"
#include "krm/messages/diag/oscilloscope.h"
#include "krm/messages/diag/oscilloscope_channel.h"
#include "krm/messages/diag/special_operation.h"
#include "krm/messages/diag/translation.h"
#include "krm/messages/diag/trouble_code.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/utilities.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/messages/diag/words.h"

// Every message by class, or made by type and ID.
#include "krm/messages/all_messages.h"

// The auxiliary families.
#include "krm/messages/auxiliary/stored_data.h"
#include "krm/messages/auxiliary/unit_conversion.h"
#include "krm/messages/auxiliary/viewer.h"
#include "krm/messages/auxiliary/words_table.h"

// Element tree.
#include "krm/tree/attribute.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"
#include "krm/tree/node.h"

#endif  // KRM_ADAPTATION_DATA_H_
