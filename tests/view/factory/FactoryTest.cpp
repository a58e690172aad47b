#include <stdexcept>

#include "view/fakes/ViewTest.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Factory : public fakes::ViewTest {
 protected:
  Factory() : toolkit(record.calls) {
    auto owned = std::make_unique<fakes::FakeInterfaceLoader>(record.calls, toolkit);
    loader = owned.get();
    factory = std::make_unique<velk::Velk_AUAACConverterFactory>(std::move(owned));
  }

  fakes::FakeToolkit toolkit;
  fakes::FakeInterfaceLoader* loader;
  std::unique_ptr<velk::Velk_AUAACConverterFactory> factory;
};

TEST_F(Factory, NamesItselfAndItsInterface) {
  EXPECT_EQ(factory->interfaceVersion(), 0U);
  EXPECT_EQ(factory->description(), "Norda AAC Dravo Converter");
}

TEST_F(Factory, LoadsTheInterfaceFileAndBindsTheView) {
  const auto native = factory->uiViewForAudioUnit(&unit, {1, 1});
  ASSERT_NE(native, nullptr);
  EXPECT_EQ(record.calls.lines().front(), "loader.loadNibNamed Velk_NordaAACConverter");
  EXPECT_THAT(record.calls.lines(), Contains("unit.getProperty 5301 scope 0 element 0 size 4"));
}

TEST_F(Factory, IgnoresTheSizeThatTheHostWishes) {
  for (const ui::Size size : {ui::Size{0, 0}, ui::Size{4000, 255}, ui::Size{-1, 369}}) {
    const auto native = factory->uiViewForAudioUnit(&unit, size);
    ASSERT_NE(native, nullptr);
    EXPECT_EQ(native->frameSize(), (ui::Size{560, 195}));
  }
}

TEST_F(Factory, GivesEachCallAViewOfItsOwn) {
  const auto first = factory->uiViewForAudioUnit(&unit, {});
  const auto second = factory->uiViewForAudioUnit(&unit, {});
  EXPECT_NE(first.get(), second.get());
}

TEST_F(Factory, MayGoBeforeItsViews) {
  const auto native = factory->uiViewForAudioUnit(&unit, {});
  factory.reset();
  native->setFrameSize({560, 255});
  EXPECT_EQ(native->frameSize().height, 255.0);
}

TEST_F(Factory, LogsAnInterfaceFileThatItCannotLoadAndGivesNull) {
  loader->fault = "Velk_NordaAACConverter.ui: line 7: unexpected end";
  EXPECT_EQ(factory->uiViewForAudioUnit(&unit, {}), nullptr);
  EXPECT_THAT(record.log.lines(), ElementsAre("Unable to load nib for view.",
                                              "Velk_NordaAACConverter.ui: line 7: unexpected end"));
  EXPECT_THAT(record.calls.starting("unit."), IsEmpty());
}

TEST_F(Factory, CanLoadAgainAfterAFault) {
  loader->fault = "broken";
  EXPECT_EQ(factory->uiViewForAudioUnit(&unit, {}), nullptr);
  loader->fault.reset();
  EXPECT_NE(factory->uiViewForAudioUnit(&unit, {}), nullptr);
}

/// Throws once the objects have been made.
template <class Thrown>
class ThrowingLoader final : public ui::InterfaceLoader {
 public:
  ThrowingLoader(fakes::CallLog& log, fakes::FakeToolkit& toolkit, Thrown thrown)
      : log_(log), toolkit_(toolkit), thrown_(std::move(thrown)) {}
  std::unique_ptr<ui::NativeView> loadNibNamed(
      std::string_view /*name*/, const ui::MakeInterfaceObjects& makeObjects) override {
    auto view = std::make_unique<fakes::FakeNativeView>(log_, toolkit_);
    view->setObjects(makeObjects(*view, toolkit_.services));
    throw Thrown(thrown_);
  }

 private:
  fakes::CallLog& log_;
  fakes::FakeToolkit& toolkit_;
  Thrown thrown_;
};

class FactoryWhoseLoaderThrows : public Factory {
 protected:
  template <class Thrown>
  std::unique_ptr<ui::NativeView> viewAfter(Thrown thrown) {
    velk::Velk_AUAACConverterFactory throwing(
        std::make_unique<ThrowingLoader<Thrown>>(record.calls, toolkit, std::move(thrown)));
    return throwing.uiViewForAudioUnit(&unit, {});
  }
};

TEST_F(FactoryWhoseLoaderThrows, DisposesOfAViewWhoseOutletsWereNeverFilled) {
  EXPECT_EQ(viewAfter(ui::InterfaceError("file.ui: the outlet view.tabView stays empty")), nullptr);
  EXPECT_THAT(record.log.lines(), ElementsAre("Unable to load nib for view.",
                                              "file.ui: the outlet view.tabView stays empty"));
}

TEST_F(FactoryWhoseLoaderThrows, NamesTheFileForAnExceptionThatDoesNot) {
  EXPECT_EQ(viewAfter(std::runtime_error("out of handles")), nullptr);
  EXPECT_THAT(record.log.lines(), ElementsAre("Unable to load nib for view.",
                                              "Velk_NordaAACConverter: out of handles"));
}

TEST_F(FactoryWhoseLoaderThrows, GivesNullAndNamesTheFileWhateverIsThrown) {
  EXPECT_EQ(viewAfter(7), nullptr);
  EXPECT_THAT(record.log.lines(),
              ElementsAre("Unable to load nib for view.",
                          "Velk_NordaAACConverter: exception of an unknown type"));
  EXPECT_THAT(record.calls.starting("unit."), IsEmpty());
}

TEST_F(Factory, ThrowsNothingAtTheHostWhenTheLogItselfThrows) {
  loader->fault = "broken";
  const ui::LogSink earlier =
      ui::setLogSink([](std::string_view) { throw std::runtime_error("the host's log"); });
  EXPECT_EQ(factory->uiViewForAudioUnit(&unit, {}), nullptr);
  loader->fault.reset();
  EXPECT_EQ(factory->uiViewForAudioUnit(nullptr, {}), nullptr);
  ui::setLogSink(earlier);
}

TEST_F(Factory, GivesNullAndLogsWhenAParameterCannotBeReadWhileBinding) {
  unit.setSetting({0, 0, 3});
  for (const UInt32 parameter : {0U, 1U, 2U}) {
    forget();
    unit.failAlways(fakes::UnitCall::GetParameter, parameter, -10878);
    EXPECT_EQ(factory->uiViewForAudioUnit(&unit, {}), nullptr) << parameter;
    EXPECT_THAT(record.log.lines(), Contains(HasSubstr("parameterValue] (x.1)"))) << parameter;
    EXPECT_EQ(toolkit.runLoop.runningTimers(), 0) << parameter;
    unit.heal();
  }
}

TEST_F(Factory, AViewThatCouldNotBeBoundHearsNothing) {
  unit.failOnce(fakes::UnitCall::GetParameter, 0, -1);
  EXPECT_EQ(factory->uiViewForAudioUnit(&unit, {}), nullptr);
  forget();
  unit.hostSetsProperty(velk::kConverterProperty_MonitorSource, 1);
  unit.hostSetsParameter(0, 1);
  toolkit.runLoop.advance(std::chrono::milliseconds(120));
  EXPECT_THAT(record.calls.starting("unit.", "posted"), IsEmpty());
}

TEST_F(Factory, GivesNullForNoUnit) {
  EXPECT_EQ(factory->uiViewForAudioUnit(nullptr, {}), nullptr);
  EXPECT_THAT(record.log.lines(),
              ElementsAre("Unable to bind the view: there is no converter unit."));
  EXPECT_THAT(record.calls.starting("loader."), IsEmpty());
}

class ThrowsSomethingElse final : public ui::AssertionHandler {
 public:
  ThrowsSomethingElse() { setCurrentHandler(this); }
  ~ThrowsSomethingElse() override { setCurrentHandler(nullptr); }
  void handleFailure(const ui::Assertion& /*assertion*/) override { throw 7; }
};

TEST_F(Factory, ThrowsNothingAtTheHostWhateverTheAssertionHandlerDoes) {
  const ThrowsSomethingElse handler;
  unit.failOnce(fakes::UnitCall::GetParameter, 0, -1);
  EXPECT_EQ(factory->uiViewForAudioUnit(&unit, {}), nullptr);
}

TEST_F(Factory, BindsWhateverPropertyCannotBeRead) {
  for (const UInt32 property : {5301U, 5302U, 5304U, 4U, 8U}) {
    unit.failAlways(fakes::UnitCall::GetProperty, property, -10879);
  }
  EXPECT_NE(factory->uiViewForAudioUnit(&unit, {}), nullptr);
  EXPECT_THAT(record.log.lines(), IsEmpty());
}

}  // namespace
