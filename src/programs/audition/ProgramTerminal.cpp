#include "programs/audition/ProgramTerminal.h"

namespace host::audition {

Terminal& terminal() {
  // Never destroyed: the toolkit may have something to say even at exit.
  static Terminal& terminal = *new Terminal("aac-audition");
  return terminal;
}

}  // namespace host::audition
