#pragma once

#include <QComboBox>
#include <QDialog>

#include "host/files/ChannelChoice.h"

namespace host::audition {

/// Asks which channels to play of a file with more than two.
class ChannelDialog : public QDialog {
  Q_OBJECT

 public:
  ChannelDialog(const QString& fileName, std::uint32_t channels, QWidget* parent = nullptr);

  /// The chosen channels: two, or one for mono.
  ChannelChoice choice() const;

 private:
  QComboBox* left_;
  QComboBox* right_;
};

}  // namespace host::audition
