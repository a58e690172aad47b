#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ui/Sheets.h"
#include "view/fakes/CallLog.h"

namespace fakes {

class FakeSheet final : public ui::Sheet {
 public:
  explicit FakeSheet(std::string name) : name_(std::move(name)) {}
  const std::string& name() const { return name_; }
  /// From `beginSheet` to `orderOut`.
  bool visible = false;

 private:
  std::string name_;
};

/// Sheets, the alert and the save panel, answered by the test.
class FakeSheets final : public ui::Sheets {
 public:
  explicit FakeSheets(CallLog& log);
  ~FakeSheets() override;

  bool isAlertOpen() const { return static_cast<bool>(alertEnd_); }
  /// Texts of the newest alert.
  const ui::AlertTexts& alertTexts() const { return alertTexts_; }
  void answerAlert(int code);

  /// Whether `beginSheet` and `beginAlertSheet` throw.
  bool cannotOpen = false;
  /// The answer of every save panel from now on; no value means Cancel.
  std::optional<std::filesystem::path> saveAnswer;
  /// If set, called while a save panel is shown.
  std::function<void()> whileSavePanelRuns;
  const std::vector<ui::SavePanelTexts>& savePanels() const { return savePanels_; }

  /// What a skin does when the view goes away: closes everything and calls no end function.
  void cancelAll();

  void beginSheet(ui::Sheet& sheet, ui::View& control,
                  std::function<void(int code)> didEnd) override;
  void endSheet(ui::Sheet& sheet, int code) override;
  void orderOut(ui::Sheet& sheet) override;
  void beginAlertSheet(const ui::AlertTexts& texts, ui::View& control,
                       std::function<void(ui::Window& alert, int code)> didEnd) override;
  std::optional<std::filesystem::path> runSavePanel(const ui::SavePanelTexts& texts,
                                                    ui::View& control) override;

 private:
  void requireOpening() const;

  CallLog& log_;
  std::map<FakeSheet*, std::function<void(int code)>> open_;
  ui::AlertTexts alertTexts_;
  std::function<void(ui::Window& alert, int code)> alertEnd_;
  std::vector<ui::SavePanelTexts> savePanels_;
};

}  // namespace fakes
