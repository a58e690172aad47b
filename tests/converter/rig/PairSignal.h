#pragma once

#include "Signals.h"
#include "converter/codec/Setting.h"
#include "converter/transcoder/AudioBlock.h"

/// What one encoder and its decoder make of `source` when they begin for the sample at `start`: the
/// encoded signal from there to where the source ends, less what is still on its way.
Signal encodeFrom(const converter::Setting& setting, const converter::UnitFormat& unit,
                  const Signal& source, converter::Position start);
