// The fields of every message, record and plain structure.
#ifndef KRM_FIELDS_ALL_FIELDS_H_
#define KRM_FIELDS_ALL_FIELDS_H_

#include "krm/fields/auxiliary/stored_data.h"
#include "krm/fields/auxiliary/unit_conversion.h"
#include "krm/fields/auxiliary/viewer.h"
#include "krm/fields/auxiliary/words_table.h"
#include "krm/fields/diag/active_test.h"
#include "krm/fields/diag/can_bus.h"
#include "krm/fields/diag/cancel_codes.h"
#include "krm/fields/diag/customize.h"
#include "krm/fields/diag/data_item.h"
#include "krm/fields/diag/data_monitor.h"
#include "krm/fields/diag/display.h"
#include "krm/fields/diag/event_records.h"
#include "krm/fields/diag/freeze_frame_item.h"
#include "krm/fields/diag/freeze_frames.h"
#include "krm/fields/diag/j2534_config.h"
#include "krm/fields/diag/memory.h"
#include "krm/fields/diag/on_board_monitor.h"
#include "krm/fields/diag/oscilloscope.h"
#include "krm/fields/diag/oscilloscope_channel.h"
#include "krm/fields/diag/special_operation.h"
#include "krm/fields/diag/translation.h"
#include "krm/fields/diag/trouble_code.h"
#include "krm/fields/diag/trouble_codes.h"
#include "krm/fields/diag/utilities.h"
#include "krm/fields/diag/vehicle.h"
#include "krm/fields/diag/words.h"

#endif  // KRM_FIELDS_ALL_FIELDS_H_
