#include <gmock/gmock.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMimeDatabase>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>
#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "host/files/OpenedFile.h"
#include "host/messages/Failure.h"
#include "programs/audition/window/ChannelDialog.h"
#include "programs/audition/window/Languages.h"
#include "programs/audition/window/MainWindow.h"

namespace {

/// A text's translation context and its source text.
using Text = std::pair<std::string, std::string>;

struct Translation {
  std::string words;
  bool isFinished = true;
};

std::map<Text, Translation> translations(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  QXmlStreamReader xml(&file);
  std::map<Text, Translation> all;
  std::string context;
  std::string source;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("name")) context = xml.readElementText().toStdString();
    if (xml.name() == QLatin1String("source")) source = xml.readElementText().toStdString();
    if (xml.name() == QLatin1String("translation")) {
      const bool isFinished = !xml.attributes().hasAttribute("type");
      all[{context, source}] = {xml.readElementText().toStdString(), isFinished};
    }
  }
  EXPECT_FALSE(xml.hasError());
  return all;
}

std::set<Text> texts(const std::map<Text, Translation>& translations) {
  std::set<Text> texts;
  for (const auto& [text, translation] : translations) texts.insert(text);
  return texts;
}

std::multiset<std::string> placeholders(const std::string& text) {
  std::multiset<std::string> found;
  static const QRegularExpression placeholder(QStringLiteral("%\\d|\\*\\.\\w+"));
  for (const auto& match : placeholder.globalMatch(QString::fromStdString(text))) {
    found.insert(match.captured().toStdString());
  }
  return found;
}

class Language : public testing::TestWithParam<const char*> {
 protected:
  QString path() const {
    return QStringLiteral(VELK_SOURCES "/resources/i18n/aac-audition_%1.ts").arg(GetParam());
  }
};

/// The sources that the program is built from.
QStringList sources() {
  QStringList paths;
  for (const char* const folder :
       {VELK_SOURCES "/src/host", VELK_SOURCES "/src/programs/audition"}) {
    QDirIterator files(folder, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) paths << files.next();
  }
  return paths;
}

TEST_P(Language, HasEveryTextOfTheSourcesAndNoOther) {
  const QTemporaryDir folder;
  const auto found = folder.filePath("found.ts");
  QProcess lupdate;
  lupdate.start(VELK_LUPDATE, QStringList{"-I", VELK_SOURCES "/src", "-tr-function-alias",
                                          "tr+=words", "-locations", "none"}
                                  << sources() << "-ts" << found);
  ASSERT_TRUE(lupdate.waitForFinished(60000));
  ASSERT_EQ(lupdate.exitCode(), 0);
  const auto wanted = texts(translations(found));
  EXPECT_GT(wanted.size(), 110U);
  EXPECT_THAT(texts(translations(path())), testing::ContainerEq(wanted));
}

TEST_P(Language, TranslatesEveryTextWithItsPlaceholders) {
  for (const auto& [text, translation] : translations(path())) {
    EXPECT_TRUE(translation.isFinished) << text.second;
    EXPECT_FALSE(translation.words.empty()) << text.second;
    EXPECT_EQ(placeholders(translation.words), placeholders(text.second)) << text.second;
  }
}

TEST_P(Language, GivesEveryMenuItsOwnLetters) {
  for (const auto& [text, translation] : translations(path())) {
    const auto has = [](const std::string& words) { return words.find('&') != std::string::npos; };
    EXPECT_EQ(has(translation.words), has(text.second)) << text.second;
  }
}

TEST(Failures, AreAllThrownInWordsThatCanBeTranslated) {
  static const QRegularExpression statement(R"(\b(?:Failure|TooManyChannels|cannotPlay)\(.*?\);)",
                                            QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression words(R"(words\(\s*(?:"(?:[^"\\]|\\.)*"\s*)+\))");
  int count = 0;
  for (const auto& path : sources()) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    auto text = QString::fromUtf8(file.readAll());
    for (const auto& match : statement.globalMatch(text.remove(words))) {
      EXPECT_FALSE(match.captured().contains('"'))
          << path.toStdString() << ": " << match.captured().toStdString();
      ++count;
    }
  }
  EXPECT_GE(count, 29);
}

/// Installs a language's translations during its lifetime.
class Speaking {
 public:
  explicit Speaking(const QLocale& locale) {
    host::audition::installTranslations(locale, *QCoreApplication::instance());
  }
  Speaking(const Speaking&) = delete;
  Speaking& operator=(const Speaking&) = delete;
  ~Speaking() {
    for (auto* const translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
      QCoreApplication::removeTranslator(translator);
      delete translator;
    }
  }
};

TEST_P(Language, IsThatOfTheWindow) {
  const Speaking speaking{QLocale(QString(GetParam()))};
  const bool german = std::string(GetParam()) == "de";
  EXPECT_EQ(host::audition::MainWindow::tr("&File"), german ? "&Datei" : "&Fichier");
  host::audition::MainWindow window;
  window.transport().setLoop(host::LoopRange{0, std::int64_t{3600} * 48000}, true, 48000);
  window.transport().analysis().showState({host::Analysis::Step::Done, 1, {}, 123456});
  EXPECT_LE(window.transport().minimumSizeHint().width(), 560);
  window.show();
  EXPECT_EQ(window.width(), 560);
}

TEST_P(Language, LeavesRoomForTheCountOfOvers) {
  const Speaking speaking{QLocale(QString(GetParam()))};
  host::audition::MainWindow window;
  auto& transport = window.transport();
  transport.showTime(0, std::int64_t{599} * 48000, 48000);
  transport.analysis().showState({host::Analysis::Step::Done, 1, {}, 99999});
  window.show();
  auto* const label = transport.analysis().findChild<host::audition::ElidedLabel*>();
  ASSERT_NE(label, nullptr);
  EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width())
      << label->text().toStdString();
}

TEST_P(Language, IsThatOfWhatCannotBeDone) {
  const Speaking speaking{QLocale(QString(GetParam()))};
  const bool german = std::string(GetParam()) == "de";
  try {
    host::openForPlaying("/no/such/100 %1.wav", {});
    FAIL();
  } catch (const host::Failure& failure) {
    EXPECT_STREQ(failure.what(),
                 "cannot read '/no/such/100 %1.wav': there is no such file; give the path of a "
                 "sound file");
    EXPECT_EQ(host::audition::inUsersLanguage(failure.message()),
              german ? QStringLiteral("„/no/such/100 %1.wav“ kann nicht gelesen werden: Es gibt "
                                      "keine solche Datei; geben Sie den Pfad einer Tondatei an")
                     : QStringLiteral("impossible de lire «\u00a0/no/such/100 %1.wav\u00a0»\u00a0: "
                                      "ce fichier n’existe pas\u00a0; indiquez le chemin d’un "
                                      "fichier audio"));
  }
}

TEST_P(Language, IsThatOfTheToolkitsOwnDialogs) {
  const Speaking speaking{QLocale(QString(GetParam()))};
  const bool german = std::string(GetParam()) == "de";
  const QDialogButtonBox box(QDialogButtonBox::Cancel);
  auto cancel = box.button(QDialogButtonBox::Cancel)->text();
  EXPECT_EQ(cancel.remove('&'), german ? "Abbrechen" : "Annuler");
}

INSTANTIATE_TEST_SUITE_P(Of, Language, testing::Values("de", "fr"),
                         [](const auto& parameter) { return std::string(parameter.param); });

TEST(DesktopEntry, TakesWhatTheOpenDialogOffers) {
  QFile entry(VELK_SOURCES "/resources/desktop/aac-audition.desktop");
  ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
  const auto text = QString::fromUtf8(entry.readAll());
  static const QRegularExpression line(QStringLiteral("MimeType=(.*)"));
  const auto types = line.match(text).captured(1).split(';', Qt::SkipEmptyParts);
  const QMimeDatabase known;
  int count = 0;
  for (const char* const ending :
       {"wav", "aif", "aiff", "aifc", "flac", "ogg", "oga", "opus", "mp3", "au"}) {
    for (const auto& type : known.mimeTypesForFileName(QStringLiteral("mix.") + ending)) {
      if (!type.name().startsWith("audio/") || type.name().contains("speex")) continue;
      const auto names = type.aliases() << type.name();
      EXPECT_TRUE(std::any_of(names.begin(), names.end(), [&](const auto& name) {
        return types.contains(name);
      })) << type.name().toStdString();
      ++count;
    }
  }
  EXPECT_GE(count, 10);
}

TEST(English, IsSpokenToWhoeverReadsItOrALanguageThatIsMissing) {
  for (const char* const name : {"en_US", "en_GB", "fi_FI"}) {
    const Speaking speaking{QLocale(QString(name))};
    EXPECT_EQ(host::audition::MainWindow::tr("&File"), "&File") << name;
  }
}

TEST(ChannelDialog, TakesTheFirstTwoChannelsUnlessOthersAreChosen) {
  host::audition::ChannelDialog dialog("surround.wav", 6);
  EXPECT_EQ(dialog.choice(), (host::ChannelChoice{1, 2}));
  const auto boxes = dialog.findChildren<QComboBox*>();
  ASSERT_EQ(boxes.size(), 2);
  boxes[0]->setCurrentIndex(4);
  boxes[1]->setCurrentIndex(5);
  EXPECT_EQ(dialog.choice(), (host::ChannelChoice{5, 6}));
  boxes[1]->setCurrentIndex(6);
  EXPECT_EQ(dialog.choice(), (host::ChannelChoice{5}));
}

}  // namespace
