#pragma once

#include <concepts>
#include <cstring>
#include <span>
#include <type_traits>

#include "audio_unit/TypedProperty.h"

namespace converter {

class AacConverter;

/// Where a property is offered. A scope that is not named has none.
struct PropertyPlace {
  bool isOfTheStreams = false;
  UInt32 elements = 1;

  /// `noErr`, or what is wrong with asking there.
  OSStatus check(AudioUnitScope scope, AudioUnitElement element) const;
};

/// On the global scope, element 0.
inline constexpr PropertyPlace kOfTheUnit{};
/// On the input and the output scope, element 0.
inline constexpr PropertyPlace kOfTheStreams{.isOfTheStreams = true};
/// On the global scope, an element for each of the three parameters.
inline constexpr PropertyPlace kOfEachParameter{.elements = 3};

/// One property of the unit, all of it: what it is called, where it lies, what reads it and what
/// writes it. Made by `readable`, `writable` and `request` only, so that none is left half
/// declared.
class PropertyDeclaration {
 public:
  AudioUnitPropertyID id() const { return id_; }
  /// Of the data, bytes.
  UInt32 size() const { return size_; }
  PropertyPlace place() const { return place_; }
  bool isReadable() const { return read_ != nullptr; }
  bool isWritable() const { return write_ != nullptr; }

  /// Fill `data` with the property's value and take the value from it: `noErr`, or the error that
  /// names the first thing that does not fit, in the order scope, element, access, size. Reading
  /// takes any buffer that is large enough and sets `size` to what it filled, writing takes only
  /// the property's own size.
  OSStatus read(AacConverter& unit, AudioUnitScope scope, AudioUnitElement element, void* data,
                UInt32& size) const;
  OSStatus write(AacConverter& unit, AudioUnitScope scope, AudioUnitElement element,
                 const void* data, UInt32 size) const;

  /// A property that only the unit changes. `Read` is a lambda without captures that takes the unit
  /// and the element and returns the data.
  template <class Data, class Read>
  static constexpr PropertyDeclaration readable(const audio_unit::Property<Data>& property,
                                                PropertyPlace place, Read /*read*/) {
    return {property, place, readOf<Data, Read>, nullptr};
  }
  /// A property that anybody may change. `Write` takes the unit and the data and returns a status.
  template <class Data, class Read, class Write>
  static constexpr PropertyDeclaration writable(const audio_unit::Property<Data>& property,
                                                Read /*read*/, Write /*write*/) {
    return {property, kOfTheUnit, readOf<Data, Read>, writeOf<Data, Write>};
  }
  /// A property that is written to make the unit do something, and has no value to read.
  template <class Data, class Write>
  static constexpr PropertyDeclaration request(const audio_unit::Property<Data>& property,
                                               Write /*write*/) {
    return {property, kOfTheUnit, nullptr, writeOf<Data, Write>};
  }

 private:
  using ReadInto = void (*)(AacConverter& unit, AudioUnitElement element, void* data);
  using WriteFrom = OSStatus (*)(AacConverter& unit, const void* data);

  template <class Data>
  constexpr PropertyDeclaration(const audio_unit::Property<Data>& property, PropertyPlace place,
                                ReadInto read, WriteFrom write)
      : id_(property.id),
        size_(sizeof(Data)),  // NOLINT(bugprone-sizeof-expression): may be a pointer
        place_(place),
        read_(read),
        write_(write) {}

  template <class Data, class Read>
  static void readOf(AacConverter& unit, AudioUnitElement element, void* data) {
    // Only the property's own type, so that neither a wider nor a narrower one fills the data.
    static_assert(std::same_as<std::invoke_result_t<Read, AacConverter&, AudioUnitElement>, Data>);
    const Data value = Read{}(unit, element);
    std::memcpy(data, &value, sizeof value);  // NOLINT(bugprone-sizeof-expression)
  }
  template <class Data, class Write>
  static OSStatus writeOf(AacConverter& unit, const void* data) {
    Data value{};
    std::memcpy(&value, data, sizeof value);
    return Write{}(unit, value);
  }

  AudioUnitPropertyID id_;
  UInt32 size_;
  PropertyPlace place_;
  ReadInto read_;
  WriteFrom write_;
};

/// The one of that identifier, or null.
const PropertyDeclaration* find(std::span<const PropertyDeclaration> declarations,
                                AudioUnitPropertyID id);

}  // namespace converter
