#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "ui/Connections.h"
#include "ui/NotificationCenter.h"
#include "ui/Toolkit.h"
#include "view/main/TabController.h"

namespace velk {

class Velk_AUAACConverterCustomView;

/// The listening-test page: in each cycle A or B plays the source and the other the encoded
/// signal, and the user says which is the source. Main thread only.
class Velk_AACEncodingViewListeningTestController final : public TabController {
 public:
  /// Seeds the process-wide random generator with the processor time. `toolkit` must outlive the
  /// controller.
  explicit Velk_AACEncodingViewListeningTestController(ui::Toolkit& toolkit);
  ~Velk_AACEncodingViewListeningTestController() override;

  /// Stores the main view, which is not owned.
  void setOwner(Velk_AUAACConverterCustomView* owner);

  /// Outlets and actions by name, for the skin.
  ui::Connections& connections() { return connections_; }

  void prepare() override;
  void cleanup() override;

  // What is heard.
  void monitorSource(ui::Object* sender);
  void monitorA(ui::Object* sender);
  void monitorB(ui::Object* sender);

  // The test.
  void chooseA(ui::Object* sender);
  void chooseB(ui::Object* sender);
  /// Scores the answer that the answer buttons show; then draws the next cycle or ends the test.
  void nextCycle();
  /// Ends the test and sets up a new one. A sender that is a window discards the results; any other
  /// sender gets the results sheet.
  void endTest(ui::Object* sender);
  void toggleLearnMode(ui::Object* sender);
  /// How many of `trialSize` answers must be correct.
  std::uint32_t requiredCorrectAnswersForTrialSize(std::uint32_t trialSize) const;

  // Results.
  void prepareResultsSheetAndShow();
  void okButtonPressed(ui::Object* sender);
  /// Asks for a file and writes the results of the last finished test to it. A failed write is
  /// silent. The controller may have been destroyed when this returns.
  void saveResultFile();

  // Keyboard.
  void monitorSourceViaNotification(const ui::Notification& notification);
  void monitorAViaNotification(const ui::Notification& notification);
  void monitorBViaNotification(const ui::Notification& notification);
  void chooseAViaNotification(const ui::Notification& notification);
  void chooseBViaNotification(const ui::Notification& notification);

 private:
  struct TestData {
    /// Answers given, plus 1.
    std::uint32_t cycle;
    std::uint32_t correct;
  };

  void observe();
  void hideVerdicts();
  void showVerdict(bool correct);
  void showFirstCycle();

  ui::Toolkit& toolkit_;
  ui::Connections connections_;

  Velk_AUAACConverterCustomView* owner = nullptr;
  ui::TextField* cycleLabel = nullptr;
  ui::Button* sourceButton = nullptr;
  ui::Button* aButton = nullptr;
  ui::Button* bButton = nullptr;
  ui::Button* aIsSourceButton = nullptr;
  ui::Button* bIsSourceButton = nullptr;
  ui::TextField* aResultsText = nullptr;
  ui::TextField* bResultsText = nullptr;
  ui::Button* endTestButton = nullptr;
  ui::Button* learnModeButton = nullptr;
  ui::Button* saveResultsButton = nullptr;
  ui::Sheet* resultsSheet = nullptr;
  ui::TextField* encoderField = nullptr;
  ui::TextField* cyclesField = nullptr;
  ui::TextField* resultsField = nullptr;
  ui::TextField* summaryField = nullptr;
  /// The current cycle, counted from 1.
  std::uint32_t cycle = 1;
  std::uint32_t correctAnswers = 0;
  /// A plays the source and B the encoded signal.
  bool aIsSource = false;
  /// The number in the next results file's proposed name.
  std::uint32_t fileID = 1;
  std::optional<TestData> lastTestData;
  /// Expires with the controller, which may happen while a save panel runs.
  std::shared_ptr<const bool> alive_;
};

}  // namespace velk
