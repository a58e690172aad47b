#pragma once

#include "Signals.h"
#include "converter/codec/Setting.h"
#include "converter/transcoder/AudioBlock.h"

/// The encoded signal of `source` from `start` on, by an encoder and decoder opened for that
/// position; it ends where the codec would need more source.
Signal encodeFrom(const converter::Setting& setting, const converter::UnitFormat& unit,
                  const Signal& source, converter::Position start);
