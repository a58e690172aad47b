#pragma once

#include <memory>

#include "host/files/AtomicFile.h"
#include "programs/audition/CommandLine.h"

class QWidget;

namespace host::audition {

/// The files that a run will write, claimed before any work starts.
struct OutputFiles {
  std::unique_ptr<AtomicFile> screenshot;
  std::unique_ptr<AtomicFile> record;
};

/// Claims the files that the options name. Throws `Failure` when one of them cannot be written.
OutputFiles claimOutputFiles(const AuditionOptions& options);

/// Writes a picture of the window as it looks now. Throws `Failure`.
void writeScreenshot(QWidget& window, AtomicFile& file);

}  // namespace host::audition
