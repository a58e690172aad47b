#include "programs/audition/waveform/AccessibleWaveform.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "programs/audition/waveform/WaveformView.h"

namespace host::audition {
namespace {

/// Presents the waveform as a slider over the file's seconds.
class AccessibleWaveform : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit AccessibleWaveform(WaveformView* view)
      : QAccessibleWidget(view, QAccessible::Slider), view_(*view) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Value ? view_.valueText() : QAccessibleWidget::text(which);
  }
  QVariant currentValue() const override { return seconds(view_.position()); }
  void setCurrentValue(const QVariant& value) override {
    Q_EMIT view_.positionChosen(static_cast<qint64>(value.toDouble() * view_.format().sampleRate));
  }
  QVariant minimumValue() const override { return 0.0; }
  QVariant maximumValue() const override { return seconds(view_.length()); }
  QVariant minimumStepSize() const override { return seconds(view_.step()); }

 private:
  double seconds(std::int64_t frames) const {
    return view_.format().sampleRate > 0 ? static_cast<double>(frames) / view_.format().sampleRate
                                         : 0.0;
  }

  WaveformView& view_;
};

QAccessibleInterface* accessibleFor(const QString& /*className*/, QObject* object) {
  auto* const view = qobject_cast<WaveformView*>(object);
  return view != nullptr ? new AccessibleWaveform(view) : nullptr;
}

}  // namespace

void makeWaveformsAccessible() {
  static const bool installed = [] {
    QAccessible::installFactory(accessibleFor);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace host::audition
