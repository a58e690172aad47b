#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <cstdlib>
#include <set>

#include "skins/qt/Host.h"
#include "skins/qt/Lamp.h"
#include "skins/qt/QtColors.h"
#include "skins/qt/SegmentedControlAdapter.h"
#include "skins/qt/SkinStyle.h"
#include "skins/qt/Tour.h"
#include "view/fakes/FakeConverter.h"

namespace {

using namespace std::chrono_literals;

QRect placeIn(const QWidget& top, const QWidget& widget) {
  return {widget.mapTo(&top, QPoint(0, 0)), widget.size()};
}

/// The size that the widget's own text needs, without padding that may shrink.
QSize textSize(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    return label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                             : label->minimumSizeHint();
  }
  if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
    QStyleOptionComboBox option;
    option.initFrom(box);
    const QRect room = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, box);
    const QFont font = ui::qt::fittingFont(box->font(), box->currentText(), room.width());
    return {QFontMetrics(font).horizontalAdvance(box->currentText()) + box->width() - room.width(),
            QFontMetrics(font).height()};
  }
  if (const auto* bar = qobject_cast<const QTabBar*>(&widget)) {
    return bar->sizeHint();
  }
  return widget.minimumSizeHint();
}

void expectNothingClipped(const QWidget& top) {
  for (const QWidget* widget : top.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != top.window() ||
        qobject_cast<const QStackedWidget*>(widget) != nullptr ||
        qobject_cast<const QTabWidget*>(widget) != nullptr) {
      // Containers of pages ask for room for the hidden pages, too.
      continue;
    }
    const std::string name = widget->objectName().toStdString();
    const QSize needed = textSize(*widget);
    EXPECT_GE(widget->width(), needed.width()) << name << " is too narrow";
    EXPECT_GE(widget->height(), needed.height()) << name << " is not tall enough";
    EXPECT_TRUE(top.rect().contains(placeIn(top, *widget)))
        << name << " sticks out of " << top.objectName().toStdString();
  }
}

void expectNothingOverlaps(const QWidget& top) {
  std::vector<const QWidget*> leaves;
  for (const QWidget* widget : top.findChildren<QWidget*>()) {
    const bool isLeaf = qobject_cast<const QLabel*>(widget) != nullptr ||
                        qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                        qobject_cast<const QComboBox*>(widget) != nullptr ||
                        qobject_cast<const QSlider*>(widget) != nullptr ||
                        dynamic_cast<const ui::qt::Lamp*>(widget) != nullptr;
    if (isLeaf && widget->isVisible() && widget->window() == top.window()) {
      leaves.push_back(widget);
    }
  }
  for (std::size_t one = 0; one < leaves.size(); ++one) {
    for (std::size_t other = one + 1; other < leaves.size(); ++other) {
      EXPECT_FALSE(placeIn(top, *leaves[one]).intersects(placeIn(top, *leaves[other])))
          << leaves[one]->objectName().toStdString() << " and "
          << leaves[other]->objectName().toStdString();
    }
  }
}

class Look : public testing::TestWithParam<const char*> {
 protected:
  Look() : unit_(calls_) {
    options_.language = GetParam();
    options_.locale = GetParam();
    options_.resources = resources_.path();
  }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_;
  qt_test::ResourceFolder resources_;
  qt_test::HostOptions options_;
};

TEST_P(Look, ClipsNothingAndLetsNothingOverlap) {
  qt_test::Tour(unit_, options_).take([](const QWidget& page) {
    expectNothingClipped(page);
    expectNothingOverlaps(page);
  });
}

TEST_P(Look, ClipsNothingWithTextsHalfAsLongAgain) {
  resources_.lengthenTexts();
  qt_test::Tour(unit_, options_).take([](const QWidget& page) {
    expectNothingClipped(page);
    expectNothingOverlaps(page);
  });
}

TEST_P(Look, ClipsNothingOnAMonoConverter) {
  unit_.channels = 1;
  resources_.lengthenTexts();
  qt_test::Tour(unit_, options_).take([](const QWidget& page) {
    expectNothingClipped(page);
    expectNothingOverlaps(page);
  });
}

INSTANTIATE_TEST_SUITE_P(Languages, Look, testing::Values("en", "de", "fr"),
                         [](const auto& info) { return std::string(info.param); });

/// Whether the caption is the same in every language.
bool isTheSameEverywhere(const QString& caption) {
  static const std::set<QString> kSame = {
      "A",        "B",        "S",      "?",       "\u232B",   "AAC",     "ABR",
      "AAC HE",   "AAC HEv2", "VBRC",   "VBR",     "OK",       "Source",  "clips",
      "Clips",    "Details",  "Pages",  "Verdict", "Correct",  "Monitor", "Encoder",
      "Encoder:", "Peak",     "Sample", "%@ dB",   "Incorrect"};
  return caption.isEmpty() || kSame.contains(caption) ||
         std::none_of(caption.begin(), caption.end(), [](QChar c) { return c.isLetter(); });
}

std::multiset<QString> captionsOf(const QWidget& view) {
  std::multiset<QString> captions;
  const auto add = [&captions](const QString& text) {
    if (!isTheSameEverywhere(text)) {
      captions.insert(text);
    }
  };
  for (const QWidget* widget : view.findChildren<QWidget*>()) {
    if (qobject_cast<const QTabBar*>(widget->parentWidget()) != nullptr) {
      // Qt's own buttons, which are never shown.
      continue;
    }
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
      if (!label->text().endsWith("dB")) {
        add(label->text());
      }
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
      add(button->text());
    } else if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
      for (int index = 0; index < tabs->count(); ++index) {
        add(tabs->tabText(index));
      }
    } else if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
      for (int index = 0; index < box->count(); ++index) {
        add(box->itemText(index));
      }
    }
    add(widget->windowTitle());
    add(widget->toolTip());
    for (const QString& part : widget->accessibleName().split(": ").first().split(", ")) {
      add(part);
    }
  }
  return captions;
}

TEST(Captions, AreAllTranslated) {
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  const auto english = captionsOf(*qt_test::Host(unit).view());
  EXPECT_GT(english.size(), 60U);
  for (const char* language : {"de", "fr"}) {
    qt_test::HostOptions options;
    options.language = options.locale = language;
    const auto translated = captionsOf(*qt_test::Host(unit, options).view());
    for (const QString& caption : english) {
      EXPECT_FALSE(translated.contains(caption))
          << language << " lacks \"" << caption.toStdString() << "\"";
    }
  }
}

class Palettes : public testing::Test {
 protected:
  void TearDown() override { QApplication::setPalette(original_); }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_{calls_};
  QPalette original_ = QApplication::palette();
};

TEST_F(Palettes, MayChangeWhileTheViewIsShown) {
  qt_test::setLightPalette();
  qt_test::Host host(unit_);
  unit_.statistics = qt_test::loudMix();
  host.advance(200ms);
  const auto& field = host.outlet<QLabel>("auditionController.sslField");
  EXPECT_EQ(field.palette().color(QPalette::WindowText).rgb(), QColor::fromRgbF(0.5F, 0, 0).rgb());
  qt_test::setDarkPalette();
  QApplication::processEvents();
  const QColor dark = field.palette().color(QPalette::WindowText);
  EXPECT_GE(ui::qt::contrast(dark, field.palette().color(QPalette::Window)), 4.5);
  EXPECT_TRUE(ui::qt::isDark(host.view()->grab().toImage().pixelColor(2, 2)));
  QTest::mouseClick(&host.outlet("auditionController.resetButton"), Qt::LeftButton);
  EXPECT_EQ(field.palette().color(QPalette::WindowText),
            host.view()->palette().color(QPalette::WindowText));
}

TEST_F(Palettes, ColourTheChosenSegmentWithTheAccent) {
  qt_test::setDarkPalette();
  qt_test::Host host(unit_);
  host.advance(120ms);
  const QWidget& segment = host.named("monitorEncodedSegment");
  const QImage picture = host.view()->grab().toImage();
  const QPoint inside = segment.mapTo(host.view(), QPoint(segment.width() / 2, 4));
  EXPECT_EQ(picture.pixelColor(inside * picture.devicePixelRatio()).rgb(),
            QApplication::palette().color(QPalette::Highlight).rgb());
}

TEST(Readings, KeepTheirPlaceWhenTheyChange) {
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  qt_test::Host host(unit);
  QTest::mouseClick(&host.outlet("auditionController.showDetailsButton"), Qt::LeftButton);
  host.advance(120ms);
  const QWidget& field = host.outlet("auditionController.sirField");
  const QRect before = placeIn(*host.view(), field);
  unit.statistics = qt_test::loudMix();
  host.advance(120ms);
  QApplication::processEvents();
  EXPECT_EQ(placeIn(*host.view(), field), before);
}

TEST(Readings, MarkAnOverByWeightAndShapeAsWellAsByColour) {
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  qt_test::Host host(unit);
  QTest::mouseClick(&host.outlet("auditionController.showDetailsButton"), Qt::LeftButton);
  unit.statistics.fill({0.0F, 0.4F, 0, 12});
  host.advance(200ms);
  const auto isBold = [&host](const char* field) {
    return host.outlet(std::string("auditionController.") + field).font().bold();
  };
  const auto lampPicture = [&host](const char* lamp) {
    return host.outlet(std::string("auditionController.") + lamp)
        .grab()
        .toImage()
        .convertToFormat(QImage::Format_Grayscale8);
  };
  EXPECT_FALSE(isBold("sslField"));
  EXPECT_FALSE(isBold("sslcField"));
  EXPECT_TRUE(isBold("silField"));
  EXPECT_TRUE(isBold("silcField"));
  // The square fills corners that the round lamp leaves empty, which shows even without colour.
  const QImage dark = lampPicture("sslIndicator");
  const QImage lit = lampPicture("silIndicator");
  const int background = qGray(host.view()->palette().color(QPalette::Window).rgb());
  const auto filled = [background](const QImage& lamp) {
    int pixels = 0;
    for (int y = 0; y < lamp.height(); ++y) {
      for (int x = 0; x < lamp.width(); ++x) {
        pixels += std::abs(qGray(lamp.pixel(x, y)) - background) > 20 ? 1 : 0;
      }
    }
    return pixels;
  };
  EXPECT_GT(filled(dark), 0);
  EXPECT_GT(filled(lit), filled(dark) * 4 / 3);
  QTest::mouseClick(&host.outlet("auditionController.resetButton"), Qt::LeftButton);
  EXPECT_FALSE(isBold("silField"));
  EXPECT_FALSE(isBold("silcField"));
  EXPECT_EQ(lampPicture("silIndicator"), dark);
}

TEST(FittingFont, ShrinksToShowTheWholeTextButStaysReadable) {
  QFont font = QApplication::font();
  font.setPixelSize(13);
  const QString text = "High Quality (AAC HE VBRC 320 Kbps)";
  const int width = QFontMetrics(font).horizontalAdvance(text);
  EXPECT_EQ(ui::qt::fittingFont(font, text, width).pixelSize(), 13);
  const QFont smaller = ui::qt::fittingFont(font, text, width - 10);
  EXPECT_LT(smaller.pixelSize(), 13);
  EXPECT_LE(QFontMetrics(smaller).horizontalAdvance(text), width - 10);
  EXPECT_EQ(ui::qt::fittingFont(font, text, 1).pixelSize(), 10);
}

}  // namespace
