#pragma once

#include <cstdint>

namespace host::audition {

/// The stretch of a file that a widget shows, in frames.
class VisibleRange {
 public:
  /// Nobody needs to see less.
  static constexpr std::int64_t kShortest = 256;

  VisibleRange() = default;
  /// All of a file.
  explicit VisibleRange(std::int64_t length) : length_(length), end_(length) {}

  std::int64_t begin() const { return begin_; }
  std::int64_t end() const { return end_; }
  std::int64_t span() const { return end_ - begin_; }
  bool isAll() const { return begin_ == 0 && end_ == length_; }

  /// The file turns out to have another length; what is shown of it stays.
  void setLength(std::int64_t length);
  /// Shows `factor` times as much, while `anchor` stays where it is.
  void zoom(double factor, std::int64_t anchor);
  void scroll(std::int64_t frames);
  /// Turns over to where `frame` is, if it is not to be seen.
  void follow(std::int64_t frame);

  /// Where in a widget `width` wide a frame is, and which frame is where; places outside are
  /// possible.
  double xOf(std::int64_t frame, double width) const;
  std::int64_t frameAt(double x, double width) const;

  friend bool operator==(const VisibleRange&, const VisibleRange&) = default;

 private:
  void place(std::int64_t begin, std::int64_t span);

  std::int64_t length_ = 0;
  std::int64_t begin_ = 0;
  std::int64_t end_ = 0;
};

}  // namespace host::audition
