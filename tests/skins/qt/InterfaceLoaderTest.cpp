#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QWidget>
#include <filesystem>
#include <fstream>

#include "skins/qt/Host.h"
#include "skins/qt/QtInterfaceLoader.h"
#include "view/factory/InterfaceObjects.h"
#include "view/factory/Velk_AUAACConverterFactory.h"
#include "view/fakes/FakeConverter.h"
#include "view/fakes/LogCapture.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;

/// Loads the view from a copy of the bundle's resources, which a test may damage.
class InterfaceLoader : public testing::Test {
 protected:
  std::unique_ptr<ui::NativeView> load() {
    ui::qt::Environment environment = qt_test::testEnvironment(resources_.path());
    ui::qt::QtInterfaceLoader loader(environment);
    return loader.loadNibNamed("Velk_NordaAACConverter", velk::makeInterfaceObjects);
  }

  /// Loads the view and returns the error message; empty if loading succeeds.
  std::string fault() {
    try {
      load();
      return {};
    } catch (const ui::InterfaceError& error) {
      return error.what();
    }
  }

  /// Adds a label with these properties to the audition page.
  void addLabel(const std::string& properties) const {
    resources_.rewrite("<widget class=\"Lamp\" name=\"sourceClipIndicator\">",
                       "<widget class=\"QLabel\" name=\"extraLabel\">" + properties +
                           "</widget></item><item>"
                           "<widget class=\"Lamp\" name=\"sourceClipIndicator\">");
  }
  static std::string property(const std::string& name, const std::string& value) {
    return "<property name=\"" + name + "\" stdset=\"0\"><string>" + value + "</string></property>";
  }
  void write(const std::string& text) const { std::ofstream(resources_.interfaceFile()) << text; }

  qt_test::ResourceFolder resources_;
};

TEST_F(InterfaceLoader, LoadsTheInterfaceFile) {
  const auto view = load();
  ASSERT_NE(view, nullptr);
  EXPECT_NE(dynamic_cast<QWidget*>(view.get()), nullptr);
  EXPECT_EQ(view->frameSize(), (ui::Size{560, 369}));
}

TEST_F(InterfaceLoader, NamesAMissingFile) {
  std::filesystem::remove(resources_.interfaceFile());
  EXPECT_THAT(fault(),
              AllOf(HasSubstr(resources_.interfaceFile().string()), HasSubstr("cannot be opened")));
}

TEST_F(InterfaceLoader, NamesABrokenFile) {
  write("<?xml version=\"1.0\"?><ui version=\"4.0\"><widget class=\"QWidget\"");
  EXPECT_THAT(fault(), AllOf(HasSubstr("Velk_NordaAACConverter.ui"), HasSubstr("line 1")));
  write("");
  EXPECT_THAT(fault(), HasSubstr("Velk_NordaAACConverter.ui"));
  write("This is no form.");
  EXPECT_THAT(fault(), HasSubstr("Velk_NordaAACConverter.ui"));
}

TEST_F(InterfaceLoader, RefusesAFileOfAnotherStructure) {
  write("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"top\"/></ui>");
  EXPECT_THAT(fault(), HasSubstr("QStackedWidget"));
  write("<ui version=\"4.0\"><widget class=\"QStackedWidget\" name=\"top\"/></ui>");
  EXPECT_THAT(fault(), HasSubstr("CustomView"));
  write(
      "<ui version=\"4.0\"><widget class=\"QStackedWidget\" name=\"top\">"
      "<widget class=\"QWidget\" name=\"stray\"/></widget></ui>");
  EXPECT_THAT(fault(), HasSubstr("\"stray\""));
}

TEST_F(InterfaceLoader, NamesAnUnknownClass) {
  resources_.rewrite("class=\"QSlider\"", "class=\"QSlyder\"");
  EXPECT_THAT(fault(), HasSubstr("\"QSlyder\""));
}

TEST_F(InterfaceLoader, NamesAnUnknownObject) {
  addLabel(property("outlets", "nobody.sslField"));
  EXPECT_THAT(fault(), AllOf(HasSubstr("\"extraLabel\""), HasSubstr("\"nobody\"")));
}

TEST_F(InterfaceLoader, NamesAnUnknownOutlet) {
  addLabel(property("outlets", "auditionController.noSuchField"));
  EXPECT_THAT(fault(),
              AllOf(HasSubstr("\"extraLabel\""), HasSubstr("\"auditionController.noSuchField\"")));
}

TEST_F(InterfaceLoader, NamesAnOutletWithoutAnObject) {
  addLabel(property("outlets", "sslField"));
  EXPECT_THAT(fault(), AllOf(HasSubstr("\"extraLabel\""), HasSubstr("\"sslField\"")));
}

TEST_F(InterfaceLoader, NamesAnUnknownAction) {
  resources_.rewrite("auditionController.resetClip:", "auditionController.resetClips:");
  EXPECT_THAT(fault(),
              AllOf(HasSubstr("\"resetButton\""), HasSubstr("\"auditionController.resetClips:\"")));
}

TEST_F(InterfaceLoader, NamesAnUnknownActionOfAMenuItem) {
  resources_.rewrite("view.setStreamingPreset:", "view.setStreaming:");
  EXPECT_THAT(fault(), AllOf(HasSubstr("\"encoderPopup\""), HasSubstr("\"view.setStreaming:\"")));
}

TEST_F(InterfaceLoader, NamesAWidgetOfTheWrongKind) {
  resources_.rewrite("auditionController.sslField", "auditionController.sslIndicator");
  EXPECT_THAT(fault(),
              AllOf(HasSubstr("QLabel"), HasSubstr("\"auditionController.sslIndicator\"")));
}

TEST_F(InterfaceLoader, NamesAWidgetThatSendsNoAction) {
  addLabel(property("action", "view.showHelp:"));
  EXPECT_THAT(fault(), AllOf(HasSubstr("\"extraLabel\""), HasSubstr("sends no action")));
}

TEST_F(InterfaceLoader, NamesAnOutletThatIsFilledTwice) {
  addLabel(property("outlets", "auditionController.sslField"));
  EXPECT_THAT(fault(),
              AllOf(HasSubstr("\"auditionController.sslField\""), HasSubstr("is filled already")));
}

TEST_F(InterfaceLoader, NamesAnOutletThatStaysEmpty) {
  resources_.rewrite("auditionController.eimcField", "");
  EXPECT_THAT(fault(),
              AllOf(HasSubstr("no widget fills"), HasSubstr("\"auditionController.eimcField\"")));
}

TEST_F(InterfaceLoader, NamesACaptionOfAMissingButton) {
  addLabel(property("clicks", "noSuchButton"));
  EXPECT_THAT(fault(), AllOf(HasSubstr("\"extraLabel\""), HasSubstr("\"noSuchButton\"")));
}

TEST_F(InterfaceLoader, NamesAMenuWithMoreActionsThanItems) {
  resources_.rewrite("<string>view.setCustomEncoder:</string>",
                     "<string>view.setCustomEncoder:</string><string></string>");
  EXPECT_THAT(fault(), AllOf(HasSubstr("\"encoderPopup\""), HasSubstr("fewer menu items")));
}

TEST_F(InterfaceLoader, FillsSeveralOutletsWithOneWidget) {
  resources_.rewrite("auditionController.eimcField", "");
  resources_.rewrite(">auditionController.esmcField<",
                     ">auditionController.esmcField auditionController.eimcField<");
  EXPECT_EQ(fault(), "");
}

TEST_F(InterfaceLoader, MakesTheFactoryLogTheFaultAndGiveNoView) {
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  const fakes::LogCapture log(calls);
  resources_.rewrite("view.showHelp:", "view.showNoHelp:");
  velk::Velk_AUAACConverterFactory factory(
      std::make_unique<ui::qt::QtInterfaceLoader>(qt_test::testEnvironment(resources_.path())));
  EXPECT_EQ(factory.uiViewForAudioUnit(&unit, {0, 0}), nullptr);
  EXPECT_THAT(log.lines(),
              testing::IsSupersetOf({testing::Matcher<std::string>("Unable to load nib for view."),
                                     testing::Matcher<std::string>(HasSubstr("showNoHelp:"))}));
}

TEST_F(InterfaceLoader, NamesAnInvalidGridPlace) {
  resources_.rewrite("<item row=\"6\" column=\"6\">", "<item row=\"-427\" column=\"6\">");
  EXPECT_THAT(fault(), HasSubstr("\"-427\""));
  resources_.rewrite("row=\"-427\"", "row=\"1073741824\"");
  EXPECT_THAT(fault(), HasSubstr("\"1073741824\""));
}

TEST_F(InterfaceLoader, SurvivesATruncatedFile) {
  std::ifstream stream(resources_.interfaceFile());
  const std::string whole{std::istreambuf_iterator<char>(stream), {}};
  for (std::size_t length = 0; length + 8 < whole.size(); length += whole.size() / 23) {
    write(whole.substr(0, length));
    EXPECT_NE(fault(), "") << "cut after " << length << " bytes";
  }
}

}  // namespace
