#pragma once

#include <QToolButton>
#include <QWidget>

#include "host/analysis/Analysis.h"
#include "programs/audition/window/ElidedLabel.h"

namespace host::audition {

/// Shows the progress of the file's analysis, with a button to stop or restart it.
class AnalysisIndicator : public QWidget {
  Q_OBJECT

 public:
  explicit AnalysisIndicator(QWidget* parent = nullptr);

  void showState(const Analysis::State& state);
  /// Clears the row when there is no analysis.
  void showNothing();

 Q_SIGNALS:
  void cancelled();
  void restarted();

 private:
  void showButton(const QString& sign, const QString& name);

  ElidedLabel* label_;
  QToolButton* button_;
  bool restarts_ = false;
};

/// The state in a few words.
QString analysisText(const Analysis::State& state);

}  // namespace host::audition
