#pragma once

#include <QLocale>
#include <QString>

#include "host/messages/Message.h"

class QCoreApplication;

namespace host::audition {

/// Gives the window the words of the user's language, and the toolkit's own where they are
/// installed. English needs none. Before any window is made.
void speakLanguageOf(const QLocale& locale, QCoreApplication& application);

/// What the rooms without a toolkit say, in the language that the window speaks.
QString inUsersLanguage(const Message& message);

}  // namespace host::audition
