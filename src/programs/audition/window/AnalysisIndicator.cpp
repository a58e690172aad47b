#include "programs/audition/window/AnalysisIndicator.h"

#include <QHBoxLayout>
#include <QLocale>
#include <cmath>

#include "programs/audition/window/Languages.h"

namespace host::audition {
namespace {

using Step = Analysis::Step;

QString percent(double share) {
  // Rounded down, so that 100 appears only when it is done.
  return QLocale().toString(static_cast<int>(std::floor(share * 100)));
}

}  // namespace

QString analysisText(const Analysis::State& state) {
  switch (state.step) {
    case Step::Waveform:
      return AnalysisIndicator::tr("Reading: %1 %").arg(percent(state.share));
    case Step::Encoded:
      return AnalysisIndicator::tr("Analysing: %1 %").arg(percent(state.share));
    case Step::Done:
      return state.encodedOvers == 0 ? AnalysisIndicator::tr("Encoded: no overs")
                                     : AnalysisIndicator::tr("Encoded overs: %1")
                                           .arg(QLocale().toString(qlonglong{state.encodedOvers}));
    case Step::Cancelled:
      return AnalysisIndicator::tr("Analysis stopped");
    case Step::Failed:
      return AnalysisIndicator::tr("Analysis failed");
  }
  return {};
}

AnalysisIndicator::AnalysisIndicator(QWidget* parent)
    : QWidget(parent),
      label_(new ElidedLabel(Qt::ElideMiddle, this)),
      button_(new QToolButton(this)) {
  button_->setAutoRaise(true);
  button_->setFocusPolicy(Qt::TabFocus);
  label_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(label_, 1);
  row->addWidget(button_);
  connect(button_, &QToolButton::clicked, this, [this] {
    if (restarts_) {
      Q_EMIT restarted();
    } else {
      Q_EMIT cancelled();
    }
  });
  showNothing();
}

void AnalysisIndicator::showNothing() {
  label_->setFullText({});
  button_->hide();
}

void AnalysisIndicator::showState(const Analysis::State& state) {
  label_->setFullText(analysisText(state));
  if (state.step == Step::Failed) label_->setToolTip(inUsersLanguage(state.failure));
  restarts_ = state.step == Step::Cancelled || state.step == Step::Failed;
  if (restarts_) {
    showButton(QStringLiteral("↻"), tr("Analyse again"));
  } else {
    showButton(QStringLiteral("✕"), tr("Stop the analysis"));
  }
  button_->setVisible(state.step != Step::Done);
}

void AnalysisIndicator::showButton(const QString& sign, const QString& name) {
  if (button_->accessibleName() == name) return;
  button_->setText(sign);
  button_->setAccessibleName(name);
  button_->setToolTip(name);
}

}  // namespace host::audition
