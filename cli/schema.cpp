// krm schema: the JSON Schema of the messages.
#include "krm/exchange/schema.h"

#include <string>

#include "cli/subcommands.h"
#include "cli/text_out.h"

namespace krm_cli {

int RunSchema(const Surroundings& surroundings) {
    TextOut out(surroundings);
    out << krm::Schema();
    out.Flush();
    return kDone;
}

}  // namespace krm_cli
