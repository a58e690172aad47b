#pragma once

#include <string>

namespace host::audition {

/// One line on standard error, with the program's name in front: something that the user should
/// know, while the program carries on.
void warn(const std::string& text);
/// The same for what ends the program.
void complain(const std::string& text);
/// Writes to standard output. Throws `Failure` when it does not take everything.
void say(const std::string& text);

}  // namespace host::audition
