#pragma once

#include <string>

namespace host {

/// The codec libraries with their licences, and whether this program may be passed on: three lines
/// without the last line's end.
std::string codecTerms();

}  // namespace host
