#include "programs/audition/window/ChannelDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "programs/audition/window/Spacing.h"

namespace host::audition {
namespace {

constexpr int kMessageWidth = 352;

}  // namespace

ChannelDialog::ChannelDialog(const QString& fileName, std::uint32_t channels, QWidget* parent)
    : QDialog(parent), left_(new QComboBox(this)), right_(new QComboBox(this)) {
  setWindowTitle(tr("Choose Channels"));
  setWindowModality(Qt::WindowModal);
  auto* const message =
      new QLabel(tr("“%1” has %2 channels, and an AAC stream of this kind takes one or two. Which "
                    "ones do you want to hear?")
                     .arg(fileName, QLocale().toString(channels)),
                 this);
  message->setTextFormat(Qt::PlainText);
  message->setWordWrap(true);
  message->setFixedWidth(kMessageWidth);
  for (std::uint32_t channel = 1; channel <= channels; ++channel) {
    const auto name = tr("Channel %1").arg(QLocale().toString(channel));
    left_->addItem(name, channel);
    right_->addItem(name, channel);
  }
  right_->addItem(tr("None (mono)"), 0U);
  right_->setCurrentIndex(1);

  auto* const buttons =
      new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Open)->setText(tr("Open"));
  buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const form = new QFormLayout;
  form->addRow(tr("Left:"), left_);
  form->addRow(tr("Right:"), right_);
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(2 * kGrid, 2 * kGrid, 2 * kGrid, 2 * kGrid);
  rows->setSpacing(2 * kGrid);
  rows->addWidget(message);
  rows->addLayout(form);
  rows->addWidget(buttons);
  rows->setSizeConstraint(QLayout::SetFixedSize);
}

ChannelChoice ChannelDialog::choice() const {
  ChannelChoice choice = {left_->currentData().toUInt()};
  if (const auto right = right_->currentData().toUInt(); right > 0) choice.push_back(right);
  return choice;
}

}  // namespace host::audition
