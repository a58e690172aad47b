#pragma once

#include <cstdint>

namespace velk {

enum class Verdict : std::uint8_t { Incomplete, Failed, Passed };

/// The results sheet's verdict on `correct` of `trials` answers. It judges from 9 answers on; 9
/// always fail, because they need as many as a full test.
Verdict sheetVerdict(std::uint32_t trials, std::uint32_t correct);

/// The results file's verdict. It judges from 10 answers on.
Verdict fileVerdict(std::uint32_t trials, std::uint32_t correct);

}  // namespace velk
