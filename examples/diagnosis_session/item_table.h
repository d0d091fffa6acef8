// The item table: which values lie in the answer to which request, and how they scale.
//
// JSON, in the format of the OBDb community's signal sets:
//
//     {"commands": [
//        {"hdr": "7E0", "rax": "7E8", "cmd": {"01": "0C"}, "signals": [
//           {"id": "RPM", "name": "Engine speed", "fmt": {"bix": 0, "len": 16, "div": 4, "unit": "rpm"}}]}],
//      "dtcs": {"P0301": "Cylinder 1 misfire detected"}}
//
// `cmd` names service and parameter ID in hexadecimal, `rax` the CAN ID of the ECU that answers. `fmt` says where the
// value lies, counted in bits from the first data byte (`bix`, `len`), its scaling value = raw x `mul` / `div` + `add`
// (1, 1, 0 where absent), `sign` for two's complement, `unit`, the limits `min` and `max`, and for enumerated items
// `map`: raw value in decimal to {"value": TEXT}. `dtcs`, an addition of this program's, names trouble codes, and so is
// the unit `dtc`, of a value that is a trouble code. What else the community's format has is accepted and not used;
// any other member is a fault, for a misspelled one would change what a value means. items.schema.json beside the
// example's own table says the same to editors.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_ITEM_TABLE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_ITEM_TABLE_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "complaints.h"
#include "hex.h"
#include "scaling.h"

namespace diagnosis_session {

/// One value of an answer.
struct Item {
    std::uint16_t number = 0;  ///< from 1, in the table's order
    std::string id;
    std::string name;
    std::string unit;
    std::size_t bit = 0;     ///< of its most significant bit, from the first data byte's
    std::size_t length = 0;  ///< in bits, 1 to 32
    bool isSigned = false;   ///< two's complement
    Scaling scaling;         ///< without decimals where the item has a map
    std::optional<double> min;
    std::optional<double> max;
    unsigned char decimals = 0;  ///< that its scaling has: how many show one raw step
    bool hasMap = false;
    std::vector<std::pair<std::uint32_t, std::string>> map;  ///< raw value to text

    std::size_t EndBit() const { return bit + length; }
};

/// One request and the values in its answer.
struct ItemCommand {
    Bytes request;                     ///< service and parameter ID
    std::optional<std::uint32_t> ecu;  ///< CAN ID that answers
    std::vector<Item> items;

    /// Bytes of data that the items take up.
    std::size_t DataLength() const;
};

/// The members that objects of the table may have, used or not: one name for each object as in items.schema.json.
struct ItemTableKeys {
    const char* object;
    std::vector<const char*> keys;
};
const std::vector<ItemTableKeys>& KeysOfItemTable();

class ItemTable {
public:
    ItemTable() = default;

    /// Reads the table. Tells what it can't read, with line and column; the rest is there.
    static ItemTable Parse(std::string_view json, const Complain& complain);

    /// The command of `request` (service and parameter ID) for the ECU that answers with `ecu`, or null. A command that
    /// names another ECU counts only for the services whose parameters are the same in every ECU.
    const ItemCommand* Find(std::span<const std::uint8_t> request, std::uint32_t ecu) const {
        return request.empty() ? nullptr : Find(request[0], request.subspan(1), ecu);
    }
    const ItemCommand* Find(std::uint8_t service, std::span<const std::uint8_t> parameter, std::uint32_t ecu) const;

    /// The text of a trouble code such as "P0301", empty where the table has none.
    std::string TroubleCodeText(const std::string& code) const;

    const std::vector<ItemCommand>& Commands() const { return m_commands; }

    /// Whether the file was a table at all. If not, that was told, and no request can be found in it.
    bool IsUsable() const { return m_usable; }

private:
    std::vector<ItemCommand> m_commands;
    std::unordered_map<std::string, std::vector<std::size_t>> m_commandsByRequest;  ///< in the table's order
    std::map<std::string, std::string> m_troubleCodes;
    bool m_usable = false;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_ITEM_TABLE_H_
