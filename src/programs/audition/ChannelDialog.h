#pragma once

#include <QComboBox>
#include <QDialog>

#include "host/files/ChannelChoice.h"

namespace host::audition {

/// Asks which channels of a file with more than two are to be played.
class ChannelDialog : public QDialog {
  Q_OBJECT

 public:
  ChannelDialog(const QString& fileName, std::uint32_t channels, QWidget* parent = nullptr);

  /// What is chosen: two channels, or one for mono.
  ChannelChoice choice() const;

 private:
  QComboBox* left_;
  QComboBox* right_;
};

}  // namespace host::audition
