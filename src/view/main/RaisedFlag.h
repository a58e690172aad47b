#pragma once

namespace velk {

/// Raises a flag and lowers it at the end of the scope, however that is left, unless told to keep
/// it up.
class RaisedFlag {
 public:
  explicit RaisedFlag(bool& flag) : flag_(&flag) { flag = true; }
  RaisedFlag(const RaisedFlag&) = delete;
  RaisedFlag& operator=(const RaisedFlag&) = delete;
  ~RaisedFlag() {
    if (flag_ != nullptr) {
      *flag_ = false;
    }
  }

  void keep() { flag_ = nullptr; }

 private:
  bool* flag_;
};

}  // namespace velk
