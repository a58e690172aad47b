#pragma once

#include <set>
#include <string>
#include <string_view>

/// Every text in quotes inside a call of `localizedString`, `localized`, `text` or `score`: the
/// keys that the C++ source looks up, if they are written in the call itself.
std::set<std::string> lookedUpKeys(std::string_view source);

/// Every caption of a Qt interface file that is looked up as it is loaded: texts, titles, tool
/// tips, number formats, and each part of an accessible name.
std::set<std::string> captions(std::string_view interfaceFile);
