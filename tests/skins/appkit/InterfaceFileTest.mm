#import <AppKit/AppKit.h>
#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "skins/appkit/Host.h"
#include "skins/appkit/MainThread.h"
#include "skins/appkit/Strings.h"
#include "ui/StringsTable.h"

/// The contents of the interface file, read without the toolkit's own loader.
namespace {

using ui::appkit::nsString;
using ui::appkit::utf8;

struct Element {
  std::string name;
  std::map<std::string, std::string> attributes;
  std::vector<Element> children;

  std::string operator[](const std::string& key) const {
    const auto found = attributes.find(key);
    return found != attributes.end() ? found->second : std::string();
  }
  const Element* child(std::string_view wanted) const {
    for (const Element& element : children) {
      if (element.name == wanted) {
        return &element;
      }
    }
    return nullptr;
  }
};

std::vector<Element*> openElements;
Element document;

template <class Visit>
void forEach(const Element& element, const Visit& visit) {
  visit(element);
  for (const Element& child : element.children) {
    forEach(child, visit);
  }
}

}  // namespace

@interface VelkTest_Reader : NSObject
@end

@implementation VelkTest_Reader

- (void)parser:(NSXMLParser*)parser
    didStartElement:(NSString*)element
       namespaceURI:(NSString*)space
      qualifiedName:(NSString*)name
         attributes:(NSDictionary*)attributes {
  Element& parent = *openElements.back();
  parent.children.push_back({utf8(element), {}, {}});
  NSEnumerator* keys = [attributes keyEnumerator];
  while (NSString* key = [keys nextObject]) {
    parent.children.back().attributes[utf8(key)] = utf8([attributes objectForKey:key]);
  }
  openElements.push_back(&parent.children.back());
}

- (void)parser:(NSXMLParser*)parser
    didEndElement:(NSString*)element
     namespaceURI:(NSString*)space
    qualifiedName:(NSString*)name {
  openElements.pop_back();
}

@end

namespace {

const Element& interfaceFile() {
  if (document.children.empty()) {
    NSURL* url =
        [NSURL fileURLWithPath:nsString(VELK_RESOURCES "/appkit/Velk_NordaAACConverter.xib")];
    NSXMLParser* parser = [[[NSXMLParser alloc] initWithContentsOfURL:url] autorelease];
    [parser setDelegate:[[[VelkTest_Reader alloc] init] autorelease]];
    openElements = {&document};
    EXPECT_TRUE([parser parse]);
  }
  return document;
}

bool isControl(const Element& element) {
  static const std::set<std::string> kinds = {"button", "popUpButton", "segmentedControl", "slider",
                                              "levelIndicator"};
  return kinds.contains(element.name);
}

TEST(InterfaceFile, GivesEveryControlATextForScreenReaders) {
  appkit_test::onMain([] {
    int controls = 0;
    forEach(interfaceFile(), [&](const Element& element) {
      if (isControl(element)) {
        ++controls;
        const Element* accessibility = element.child("accessibility");
        ASSERT_NE(accessibility, nullptr) << element["id"];
        EXPECT_NE((*accessibility)["description"], "") << element["id"];
      }
    });
    EXPECT_EQ(controls, 38);
  });
}

TEST(InterfaceFile, HasEveryTextInTheStringsTable) {
  appkit_test::onMain([] {
    const ui::StringsTable table =
        ui::readStringsTable(VELK_RESOURCES "/en.lproj/AUDravoAACStrings.strings");
    // The titles of pages without tabs.
    const std::set<std::string> shownNowhere = {"Stereo", "Mono"};
    const auto expectKey = [&](const std::string& key, const Element& element) {
      const bool hasWords = key.find_first_not_of("-0123456789\u232B SAB") != std::string::npos;
      if (hasWords && !shownNowhere.contains(key)) {
        EXPECT_TRUE(table.contains(key)) << key << " of " << element["id"];
      }
    };
    forEach(interfaceFile(), [&](const Element& element) {
      expectKey(element["title"], element);
      expectKey(element["label"], element);
      expectKey(element["toolTip"], element);
      if (element.name == "accessibility") {
        NSArray* parts = [nsString(element["description"]) componentsSeparatedByString:@", "];
        for (NSUInteger part = 0; part < [parts count]; ++part) {
          expectKey(utf8([parts objectAtIndex:part]), element);
        }
      }
    });
  });
}

TEST(InterfaceFile, ConnectsOnlyWhatTheViewsClassesHave) {
  appkit_test::onMain([] {
    // Making the first view adds the methods that the core declares to the classes.
    std::map<std::string, std::string> classes;
    std::set<std::string> ids;
    forEach(interfaceFile(), [&](const Element& element) {
      if (element["customClass"].starts_with("Velk_")) {
        classes[element["id"]] = element["customClass"];
      }
      if (!element["id"].empty()) {
        EXPECT_TRUE(ids.insert(element["id"]).second) << element["id"] << " occurs twice";
      }
    });
    int actions = 0;
    forEach(interfaceFile(), [&](const Element& element) {
      if (element.name == "action") {
        ++actions;
        Class target = NSClassFromString(nsString(classes[element["target"]]));
        EXPECT_TRUE(
            [target instancesRespondToSelector:NSSelectorFromString(nsString(element["selector"]))])
            << classes[element["target"]] << " " << element["selector"];
      }
      if (element.name == "outlet") {
        EXPECT_TRUE(ids.contains(element["destination"])) << element["property"];
      }
    });
    EXPECT_EQ(actions, 27);
  });
}

TEST(InterfaceFile, GivesEveryFontItsSize) {
  // GNUstep uses an uninitialized value for a missing font size.
  appkit_test::onMain([] {
    forEach(interfaceFile(), [&](const Element& element) {
      if (element.name == "font") {
        EXPECT_NE(element["size"], "") << element["metaFont"];
      }
    });
  });
}

}  // namespace
