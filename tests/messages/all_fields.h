// The fields of every record and message, for the tests over all of them.
#ifndef KRM_TESTS_MESSAGES_ALL_FIELDS_H_
#define KRM_TESTS_MESSAGES_ALL_FIELDS_H_

#include "tests/messages/auxiliary/stored_data_fields.h"
#include "tests/messages/auxiliary/unit_conversion_fields.h"
#include "tests/messages/auxiliary/viewer_fields.h"
#include "tests/messages/auxiliary/words_table_fields.h"
#include "tests/messages/diag/active_test_fields.h"
#include "tests/messages/diag/can_bus_fields.h"
#include "tests/messages/diag/cancel_codes_fields.h"
#include "tests/messages/diag/customize_fields.h"
#include "tests/messages/diag/data_item_fields.h"
#include "tests/messages/diag/data_monitor_fields.h"
#include "tests/messages/diag/display_fields.h"
#include "tests/messages/diag/event_records_fields.h"
#include "tests/messages/diag/freeze_frame_item_fields.h"
#include "tests/messages/diag/freeze_frames_fields.h"
#include "tests/messages/diag/j2534_config_fields.h"
#include "tests/messages/diag/memory_fields.h"
#include "tests/messages/diag/on_board_monitor_fields.h"
#include "tests/messages/diag/oscilloscope_channel_fields.h"
#include "tests/messages/diag/oscilloscope_fields.h"
#include "tests/messages/diag/special_operation_fields.h"
#include "tests/messages/diag/translation_fields.h"
#include "tests/messages/diag/trouble_code_fields.h"
#include "tests/messages/diag/trouble_codes_fields.h"
#include "tests/messages/diag/utilities_fields.h"
#include "tests/messages/diag/vehicle_fields.h"
#include "tests/messages/diag/words_fields.h"

#endif  // KRM_TESTS_MESSAGES_ALL_FIELDS_H_
