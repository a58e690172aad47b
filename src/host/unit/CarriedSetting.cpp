#include "host/unit/CarriedSetting.h"

#include "converter/unit/ConverterUnit.h"
#include "host/messages/Decimal.h"
#include "host/unit/EncoderSetting.h"

namespace host {
namespace {

std::string name(float format, float strategy, double kbps) {
  const auto text = formatName(format) + " " + strategyName(strategy);
  return kbps > 0 ? text + " " + decimal(kbps, 0) + " kbit/s" : text;
}

}  // namespace

std::optional<std::string> carriedOtherwise(AudioUnit unit) {
  const auto asked = encoderSettingOf(unit);
  const auto used = readProperty(unit, converter::kConverterProperty_EffectiveSetting);
  if (!used) return std::nullopt;
  const auto askedName = name(asked.format, asked.strategy, asked.rateKbps().value_or(0));
  const auto usedName = name(static_cast<float>(used->format), static_cast<float>(used->strategy),
                             used->bitRate / 1000.0);
  if (askedName == usedName) return std::nullopt;
  return "the encoder cannot do " + askedName + " here and does " + usedName;
}

}  // namespace host
