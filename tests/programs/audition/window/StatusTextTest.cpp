#include <gmock/gmock.h>

#include <QLocale>
#include <vector>

#include "converter/unit/ConverterUnit.h"
#include "host/unit/EncoderSetting.h"
#include "programs/audition/window/StatusText.h"

using testing::HasSubstr;
using testing::Not;

namespace {

class Status : public testing::Test {
 protected:
  Status() {
    QLocale::setDefault(QLocale::c());
    const UInt32 offline = 1;
    unit_->setProperty(kAudioUnitProperty_OfflineRender, kAudioUnitScope_Global, 0, &offline,
                       sizeof offline);
    host::applyEncoderSetting(unit_.get(), {0, 0, 10});
  }
  std::string text() { return host::audition::encoderText(*unit_, 48000).toStdString(); }
  void setTest(UInt32 runs) {
    unit_->setProperty(velk::kConverterProperty_ListeningTestActive, kAudioUnitScope_Global, 0,
                       &runs, sizeof runs);
  }
  void render(int blocks) {
    std::vector<float> left(512);
    std::vector<float> right(512);
    float* const planes[] = {left.data(), right.data()};
    for (int i = 0; i < blocks; ++i) unit_->render(planes, planes, 512);
  }

  std::unique_ptr<converter::ConverterUnit> unit_ = converter::ConverterUnit::make({48000, 2, 512});
};

TEST_F(Status, NamesTheSettingAndTheLatency) {
  EXPECT_THAT(text(), HasSubstr("AAC ABR 128 kbit/s"));
  const auto milliseconds = (unit_->latency() + 24) / 48;
  EXPECT_THAT(text(), HasSubstr("latency " + std::to_string(milliseconds) + " ms"));
}

TEST_F(Status, NamesTheRealBitRateOnceSomethingWasEncoded) {
  EXPECT_THAT(text(), Not(HasSubstr("really")));
  render(100);
  EXPECT_THAT(text(), HasSubstr("really "));
}

TEST_F(Status, NamesTheSettingThatIsUsedWhereItIsNotTheOneAskedFor) {
  host::applyEncoderSetting(unit_.get(), {0, 2, 127});
  EXPECT_THAT(text(), HasSubstr("AAC VBR mode 5"));
}

TEST_F(Status, TellsNothingWhileAListeningTestRuns) {
  render(100);
  setTest(1);
  EXPECT_TRUE(host::audition::listeningTestRuns(unit_.get()));
  EXPECT_EQ(text(), "Listening test");
  setTest(0);
  EXPECT_FALSE(host::audition::listeningTestRuns(unit_.get()));
  EXPECT_THAT(text(), HasSubstr("really "));
}

}  // namespace
