#include "host/unit/ConverterSetup.h"

#include <exception>

#include "host/messages/Failure.h"

namespace host {

std::unique_ptr<converter::ConverterUnit> unitFor(AudioFormat format) {
  converter::UnitFormat unitFormat;
  unitFormat.sampleRate = format.sampleRate;
  unitFormat.channels = format.channels;
  unitFormat.maximumFrames = unitBlockFrames;
  try {
    return converter::ConverterUnit::make(unitFormat);
  } catch (const std::exception& error) {
    throw Failure(Message::words("cannot make the converter: %1"), {error.what()});
  }
}

}  // namespace host
