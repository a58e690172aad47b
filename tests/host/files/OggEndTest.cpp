#include <gtest/gtest.h>
#include <sndfile.h>

#include <fstream>

#include "Sound.h"
#include "host/files/OggEnd.h"
#include "ui/TemporaryFolder.h"

namespace {

class OggEnd : public testing::Test {
 protected:
  OggEnd() {
    writeSound(folder_ / "mix.ogg", noise(48000, 1, 96000), SF_FORMAT_OGG | SF_FORMAT_VORBIS);
    bytes_ = readBytes(folder_ / "mix.ogg");
  }
  bool isThereAfter(const std::string& bytes) const {
    std::ofstream(folder_ / "some.ogg", std::ios::binary | std::ios::trunc) << bytes;
    return host::endsWithLastOggPage(folder_ / "some.ogg");
  }

  const TemporaryFolder folder_;
  std::string bytes_;
};

TEST_F(OggEnd, IsThereInAWholeFile) {
  EXPECT_TRUE(isThereAfter(bytes_));
}

TEST_F(OggEnd, IsMissingInAFileThatStopsWithinOrBeforeTheLastPage) {
  EXPECT_FALSE(isThereAfter(bytes_.substr(0, bytes_.size() - 1)));
  const auto lastPage = bytes_.rfind("OggS");
  for (const std::size_t more : {0U, 1U, 4U, 26U, 27U}) {
    EXPECT_FALSE(isThereAfter(bytes_.substr(0, lastPage + more))) << more;
  }
}

TEST_F(OggEnd, IsMissingWhereThereIsNoPageAtAll) {
  EXPECT_FALSE(isThereAfter(""));
  EXPECT_FALSE(isThereAfter(std::string(200000, 'O')));
  EXPECT_FALSE(host::endsWithLastOggPage(folder_ / "none.ogg"));
}

TEST_F(OggEnd, IsThereBeforeATagThatSomeProgramAppended) {
  EXPECT_TRUE(isThereAfter(bytes_ + std::string(128, 'T')));
}

}  // namespace
