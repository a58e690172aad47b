#pragma once

#include <QToolButton>
#include <QWidget>

#include "host/analysis/Analysis.h"
#include "programs/audition/ElidedLabel.h"

namespace host::audition {

/// How far the analysis of the file has come, with a button to stop it or to go on.
class AnalysisIndicator : public QWidget {
  Q_OBJECT

 public:
  explicit AnalysisIndicator(QWidget* parent = nullptr);

  void showState(const Analysis::State& state);
  /// There is no analysis.
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
