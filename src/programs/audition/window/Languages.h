#pragma once

#include <QLocale>
#include <QString>

#include "host/messages/Message.h"

class QCoreApplication;

namespace host::audition {

/// Translates the window into the locale's language, and the toolkit's own texts if their
/// translation is installed. English needs none. Call it before any window is made.
void installTranslations(const QLocale& locale, QCoreApplication& application);

/// A message from the rooms without a toolkit, translated like the window.
QString inUsersLanguage(const Message& message);

}  // namespace host::audition
