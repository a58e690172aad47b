#include "Figure.h"

namespace figures {

std::vector<Family> families() {
  std::vector<Family> all = {
      codecCost(),        truePeakSpeed(), truePeakError(), meteringLoad(), callTime(),
      audioThreadCalls(), difference(),    steps(),         unitMemory(),   manyUnits(),
      oddSignals(),       meterPoll(),     measureCost(),   rates(),        gaps()};
#ifdef VELK_WITH_VIEWS
  all.push_back(viewOpening());
  all.push_back(manyViews());
#endif
  return all;
}

}  // namespace figures
