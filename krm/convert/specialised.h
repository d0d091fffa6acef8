// The converters of special signals, by kind. A caller gets them from the factory and rarely names them.
//
// Each overrides one or two steps of the base; what its comment doesn't mention is as in the base.
#ifndef KRM_CONVERT_SPECIALISED_H_
#define KRM_CONVERT_SPECIALISED_H_

#include "krm/convert/byte_converters.h"
#include "krm/convert/number_converters.h"
#include "krm/convert/pattern_converters.h"
#include "krm/convert/text_converters.h"
#include "krm/convert/time_converters.h"

#endif  // KRM_CONVERT_SPECIALISED_H_
