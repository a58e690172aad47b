#pragma once

#include <string>
#include <vector>

namespace figures {

/// One line of the table.
struct Row {
  std::string name;
  double value;
  std::string unit;
  /// As printed: "<= 1.20".
  std::string goal;
  bool holds;
};

Row atMost(std::string name, double value, double goal, std::string unit = "");
Row atLeast(std::string name, double value, double goal, std::string unit = "");

/// The rows from one measurement. Each measurement is made at most once per run.
struct Family {
  /// The names of its rows, in order.
  std::vector<std::string> rows;
  std::vector<Row> (*measure)();
};

Family codecCost();
Family truePeakSpeed();
Family truePeakError();
Family meteringLoad();
Family callTime();
Family audioThreadCalls();
Family difference();
Family gaps();
Family rates();
Family steps();
Family unitMemory();
Family manyUnits();
Family oddSignals();
Family measureCost();
Family meterPoll();
Family viewOpening();
Family manyViews();

/// Everything that this build can measure, in the order of the table.
std::vector<Family> families();

}  // namespace figures
