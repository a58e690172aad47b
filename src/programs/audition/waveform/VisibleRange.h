#pragma once

#include <cstdint>

namespace host::audition {

/// The part of a file that a widget shows, in frames.
class VisibleRange {
 public:
  /// The closest zoom.
  static constexpr std::int64_t kShortest = 256;

  VisibleRange() = default;
  /// All of a file.
  explicit VisibleRange(std::int64_t length) : length_(length), end_(length) {}

  std::int64_t start() const { return start_; }
  std::int64_t end() const { return end_; }
  std::int64_t span() const { return end_ - start_; }
  bool isAll() const { return start_ == 0 && end_ == length_; }

  /// Sets another length. The visible part stays; if the whole file was visible, it still is.
  void setLength(std::int64_t length);
  /// Shows `factor` times as many frames, while `anchor` stays where it is on screen.
  void zoom(double factor, std::int64_t anchor);
  void scroll(std::int64_t frames);
  /// Scrolls to `frame` if it is not visible.
  void follow(std::int64_t frame);

  /// Convert between frames and x coordinates in a widget of that width; both may lie outside.
  double xOf(std::int64_t frame, double width) const;
  std::int64_t frameAt(double x, double width) const;

  friend bool operator==(const VisibleRange&, const VisibleRange&) = default;

 private:
  void place(std::int64_t start, std::int64_t span);

  std::int64_t length_ = 0;
  std::int64_t start_ = 0;
  std::int64_t end_ = 0;
};

}  // namespace host::audition
