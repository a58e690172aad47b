#pragma once

#include <memory>

#include "host/files/AtomicFile.h"
#include "programs/audition/CommandLine.h"

class QWidget;

namespace host::audition {

/// The files that a run is to leave behind, claimed before any work starts.
struct OutputFiles {
  std::unique_ptr<AtomicFile> screenshot;
  std::unique_ptr<AtomicFile> record;
};

/// Throws `Failure` when one of them cannot be written.
OutputFiles claimedOutputFiles(const AuditionOptions& options);

/// Writes the window as it looks now. Throws `Failure`.
void writeScreenshot(QWidget& window, AtomicFile& file);

}  // namespace host::audition
