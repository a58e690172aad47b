#pragma once

#include <QLocale>

class QCoreApplication;

namespace host::app {

/// Gives the window the words of the user's language, and the toolkit's own where they are
/// installed. English needs none. Before any window is made.
void speakLanguageOf(const QLocale& locale, QCoreApplication& application);

}  // namespace host::app
