#include "ui/KeyPositions.h"

#include <algorithm>
#include <iterator>

namespace ui {

namespace {

struct Key {
  std::uint32_t evdev;
  std::uint16_t code;
};

// Insert (110) is where Help is on keyboards that have one, Num Lock (69) where others have Clear,
// and 86 is the additional key of ISO keyboards.
constexpr Key kKeys[] = {
    {1, 53},    {2, 18},    {3, 19},    {4, 20},    {5, 21},    {6, 23},    {7, 22},    {8, 26},
    {9, 28},    {10, 25},   {11, 29},   {12, 27},   {13, 24},   {14, 51},   {15, 48},   {16, 12},
    {17, 13},   {18, 14},   {19, 15},   {20, 17},   {21, 16},   {22, 32},   {23, 34},   {24, 31},
    {25, 35},   {26, 33},   {27, 30},   {28, 36},   {30, 0},    {31, 1},    {32, 2},    {33, 3},
    {34, 5},    {35, 4},    {36, 38},   {37, 40},   {38, 37},   {39, 41},   {40, 39},   {41, 50},
    {43, 42},   {44, 6},    {45, 7},    {46, 8},    {47, 9},    {48, 11},   {49, 45},   {50, 46},
    {51, 43},   {52, 47},   {53, 44},   {57, 49},   {59, 122},  {60, 120},  {61, 99},   {62, 118},
    {63, 96},   {64, 97},   {65, 98},   {66, 100},  {67, 101},  {68, 109},  {87, 103},  {88, 111},
    {183, 105}, {184, 107}, {185, 113}, {186, 106}, {102, 115}, {103, 126}, {104, 116}, {105, 123},
    {106, 124}, {107, 119}, {108, 125}, {109, 121}, {111, 117}, {138, 114}, {110, 114}, {86, 10},
    {55, 67},   {71, 89},   {72, 91},   {73, 92},   {74, 78},   {75, 86},   {76, 87},   {77, 88},
    {78, 69},   {79, 83},   {80, 84},   {81, 85},   {82, 82},   {83, 65},   {96, 76},   {98, 75},
    {117, 81},  {69, 71}};

constexpr std::uint32_t kX11Offset = 8;

}  // namespace

std::uint16_t positionCodeForEvdev(std::uint32_t key) {
  const auto found = std::find_if(std::begin(kKeys), std::end(kKeys),
                                  [key](const Key& row) { return row.evdev == key; });
  return found != std::end(kKeys) ? found->code : kNoPositionCode;
}

std::uint16_t positionCodeForX11(std::uint32_t keyCode) {
  return keyCode > kX11Offset ? positionCodeForEvdev(keyCode - kX11Offset) : kNoPositionCode;
}

}  // namespace ui
