#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <iostream>
#include <optional>
#include <random>

#include "view/encoder_menu/SettingKey.h"
#include "view/fakes/ViewTest.h"

namespace {

using Setting = fakes::FakeConverter::Setting;

bool same(float left, float right) {
  return left == right || (std::isnan(left) && std::isnan(right));
}

bool same(const Setting& left, const Setting& right) {
  return same(left.format, right.format) && same(left.strategy, right.strategy) &&
         same(left.rateOrQuality, right.rateOrQuality);
}

std::string name(float value, const std::vector<std::string>& names) {
  for (std::size_t code = 0; code < names.size(); ++code) {
    if (std::trunc(value) == static_cast<float>(code)) {
      return names[code];
    }
  }
  return "-";
}

/// A plain model of what the menu must hold.
class Model {
 public:
  struct Item {
    std::string title;
    std::optional<Setting> setting;
  };

  Model()
      : items{{"Ondara Plus", {}},
              {"128K AAC", Setting{0, 1, 10}},
              {"Streaming", Setting{1, 0, 7}},
              {"High Quality", {}},
              {"", {}},
              {"Custom…", {}}} {}

  void refresh(const Setting& setting) {
    if (same(setting, {0, 1, 14})) {
      selected = 0;
      return;
    }
    if (same(setting, {1, 1, 16})) {
      selected = 3;
      return;
    }
    for (std::size_t index = 0; index < items.size(); ++index) {
      if (items[index].setting && same(*items[index].setting, setting)) {
        selected = index;
        return;
      }
    }
    if (items.size() >= 16) {
      items.erase(items.end() - 2);
    }
    items.insert(items.begin() + 5, {title(setting), setting});
    selected = 5;
  }

  std::vector<Item> items;
  std::size_t selected = 0;

 private:
  static std::string title(const Setting& setting) {
    const std::string start = name(setting.format, {"AAC", "AAC HE", "AAC HEv2"}) + " " +
                              name(setting.strategy, {"ABR", "VBRC", "VBR"}) + " ";
    if (setting.strategy == 2.0F) {
      // A rate without an item may remain when the strategy becomes VBR.
      return start + "Quality: " +
             (setting.rateOrQuality < 0 ? "-"
                                        : std::to_string(static_cast<int>(setting.rateOrQuality)));
    }
    return start +
           name(setting.rateOrQuality, {"16", "20", "24", "32", "40", "48", "56", "64", "80", "96",
                                        "128", "160", "192", "224", "256", "288", "320"}) +
           " Kbps";
  }
};

class EncoderMenuWalk : public fakes::ViewTest {
 protected:
  int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random); }
  float anyOf(std::initializer_list<float> values) {
    return values.begin()[below(static_cast<int>(values.size()))];
  }

  Setting anySetting() {
    const float strategy = anyOf({0, 0, 1, 1, 2, 2, 2.5F, 3});
    const float format = anyOf({0, 0, 0, 1, 1, 2, 1.5F, std::nanf("")});
    const float value =
        strategy == 2.0F ? static_cast<float>(below(8) * 625) : static_cast<float>(below(18));
    return {format, strategy, value};
  }

  fakes::FakePopUpButton& popUp(const std::string& outlet) {
    return bound->control<fakes::FakePopUpButton>("settingsController." + outlet);
  }
  fakes::FakeSlider& slider() {
    return bound->control<fakes::FakeSlider>("settingsController.qualitySlider");
  }
  void press(const std::string& button) {
    bound->control<fakes::FakeButton>("settingsController." + button).userClicks();
  }

  void walkWithoutSheet() {
    switch (below(6)) {
      case 0:
        unit.hostSetsSetting(anySetting());
        break;
      case 1:
        unit.hostSetsPreset(static_cast<std::size_t>(below(4)));
        break;
      case 2:
        menu().userPicks(below(4));
        break;
      case 3:
      case 4:
        pickCustomEntry();
        break;
      default:
        initial = unit.setting();
        menu().userPicks(menu().numberOfItems() - 1);
        // The user's pick stays until the sheet ends.
        model.selected = model.items.size() - 1;
        isSheetOpen = true;
        settle();
        return;
    }
    settle();
    model.refresh(unit.setting());
  }

  void pickCustomEntry() {
    const int entries = menu().numberOfItems() - 6;
    if (entries == 0) {
      return;
    }
    const int index = 5 + below(entries);
    const Setting expected = *model.items[static_cast<std::size_t>(index)].setting;
    menu().userPicks(index);
    EXPECT_TRUE(same(unit.setting(), expected));
  }

  void walkInSheet() {
    switch (below(8)) {
      case 0:
        popUp("typePopup").userPicks(below(3));
        break;
      case 1:
        popUp("strategyPopup").userPicks(below(3));
        break;
      case 2:
        popUp("bitratePopup").userPicks(below(17));
        break;
      case 3:
        slider().userDrags(below(128));
        break;
      case 4:
        unit.hostSetsSetting(anySetting());
        break;
      case 5:
        unit.hostSetsPreset(static_cast<std::size_t>(below(4)));
        break;
      default:
        endSheet();
        return;
    }
    settle();
  }

  void endSheet() {
    Setting expected = initial;
    if (below(2) == 0) {
      const int strategy = popUp("strategyPopup").indexOfSelectedItem();
      expected = {static_cast<float>(popUp("typePopup").indexOfSelectedItem()),
                  static_cast<float>(strategy),
                  static_cast<float>(strategy == 2 ? slider().intValue()
                                                   : popUp("bitratePopup").indexOfSelectedItem())};
      press("OKButton");
    } else {
      press("cancelButton");
    }
    EXPECT_TRUE(same(unit.setting(), expected));
    isSheetOpen = false;
    model.refresh(expected);
    settle();
  }

  void compare() {
    ASSERT_EQ(menu().numberOfItems(), static_cast<int>(model.items.size()));
    for (std::size_t index = 0; index < model.items.size(); ++index) {
      const ui::MenuItem* item = menu().itemAtIndex(static_cast<int>(index));
      const Model::Item& expected = model.items[index];
      ASSERT_EQ(item->title(), expected.title) << "at " << index;
      ASSERT_EQ(item->representedObject() != nullptr, expected.setting.has_value())
          << "at " << index;
      if (expected.setting) {
        ASSERT_TRUE(ui::isEqual(*item->representedObject(), velk::settingKey(*expected.setting)))
            << "at " << index;
      }
    }
    ASSERT_EQ(menu().indexOfSelectedItem(), static_cast<int>(model.selected));
    ASSERT_LE(model.items.size(), 16U);
    ASSERT_EQ(menu().itemAtIndex(menu().numberOfItems() - 1)->title(), "Custom…");
  }

  std::mt19937 random;
  Model model;
  bool isSheetOpen = false;
  Setting initial{};
};

TEST_F(EncoderMenuWalk, AgreesWithAPlainModelForTenThousandSteps) {
  const char* const wanted = std::getenv("VELK_SEED");
  const auto seed = wanted != nullptr ? static_cast<unsigned>(std::strtoul(wanted, nullptr, 10))
                                      : std::random_device{}();
  std::cout << "VELK_SEED=" << seed << '\n';
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  random.seed(seed);
  bind();
  for (int step = 0; step < 10000; ++step) {
    SCOPED_TRACE(testing::Message() << "step " << step);
    isSheetOpen ? walkInSheet() : walkWithoutSheet();
    compare();
    if (HasFatalFailure() || HasNonfatalFailure()) {
      return;
    }
    forget();
  }
}

}  // namespace
