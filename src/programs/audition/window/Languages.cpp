#include "programs/audition/window/Languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

namespace host::audition {
namespace {

void install(const QLocale& locale, const QString& name, const QString& folder,
             QCoreApplication& application) {
  auto translator = std::make_unique<QTranslator>(&application);
  if (!translator->load(locale, name, QStringLiteral("_"), folder)) return;
  QCoreApplication::installTranslator(translator.release());
}

}  // namespace

void installTranslations(const QLocale& locale, QCoreApplication& application) {
  // The source texts are English.
  const auto languages = locale.uiLanguages();
  if (languages.isEmpty() || languages.front().startsWith(QLatin1String("en"))) return;
  install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath),
          application);
  install(locale, QStringLiteral("aac-audition"), QStringLiteral(":/i18n"), application);
}

QString inUsersLanguage(const Message& message) {
  return QString::fromStdString(message.translated([](const char* english) {
    return QCoreApplication::translate("host::Message", english).toStdString();
  }));
}

}  // namespace host::audition
