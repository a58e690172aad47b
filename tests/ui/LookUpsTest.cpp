#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/LookUps.h"

namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(LookUps, AreFoundInEveryKindOfCall) {
  EXPECT_THAT(lookedUpKeys("owner->localized(show ? \"Hide\" : \"Show\");\n"
                           "bundle.localizedString(\"Stop\", \"AUDravoAACStrings\");\n"
                           "texts.score(\"%@ of %@\", 3, f(\"inner\"));"),
              UnorderedElementsAre("Hide", "Show", "Stop", "%@ of %@", "inner"));
}

TEST(LookUps, JoinNeighboursAndReplaceEscapes) {
  EXPECT_THAT(lookedUpKeys("text(\n    \"Test \"\n    \"Results\\n\\\"=(\")"),
              UnorderedElementsAre("Test Results\n\"=("));
}

TEST(LookUps, EndWithTheCall) {
  EXPECT_THAT(lookedUpKeys("localized(key); log(\"unable\"); context(\"no call of text\");"),
              IsEmpty());
}

TEST(LookUps, AreNoTextsWithoutAWord) {
  EXPECT_THAT(lookedUpKeys("localized(\"%@\"); localized(\"A\"); localized(\"12 - 3\");"),
              IsEmpty());
}

TEST(Captions, AreTheTextsOfAnInterfaceFileThatAPersonReads) {
  EXPECT_THAT(
      captions("<property name=\"text\">\n <string>Reset &amp;amp; Go</string></property>"
               "<attribute name=\"title\"><string comment=\"tab\">Audition</string></attribute>"
               "<property name=\"format\" stdset=\"0\"><string notr=\"true\">%@ dB</string>"
               "</property><property name=\"toolTip\"><string>Help</string></property>"),
      UnorderedElementsAre("Reset &amp; Go", "Audition", "%@ dB", "Help"));
}

TEST(Captions, AreThePartsOfAnAccessibleName) {
  EXPECT_THAT(captions("<property name=\"accessibleName\"><string>Source, Left, 1, peak</string>"
                       "</property>"),
              UnorderedElementsAre("Source", "Left", "peak"));
}

TEST(Captions, AreNeitherNamesNorNumbersNorEmpty) {
  EXPECT_THAT(captions("<property name=\"outlets\"><string>view.tabView</string></property>"
                       "<property name=\"text\"><string/></property>"
                       "<property name=\"text\"><string></string></property>"
                       "<property name=\"text\"><string>S</string></property>"
                       "<property name=\"spacing\"><number>8</number></property>"),
              IsEmpty());
}

}  // namespace
