#include "programs/measure/RowJson.h"

#include <nlohmann/json.hpp>

#include "host/messages/Decimal.h"

namespace host::measure {

std::string asJson(const Row& row) {
  auto text = host::asJson(row.readings);
  if (!row.trim) return text;
  const nlohmann::ordered_json trim = {{"reduction_db", rounded(row.trim->reduction / 10.0, 1)},
                                       {"inter_sample", row.trim->interSample},
                                       {"encodes", row.trim->encodes}};
  text.pop_back();
  return text + ",\"trim\":" + trim.dump() + "}";
}

}  // namespace host::measure
