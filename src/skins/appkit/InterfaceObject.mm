#include "skins/appkit/InterfaceObject.h"

#import <objc/runtime.h>

#include <cctype>
#include <map>

#include "skins/appkit/ControlTable.h"
#include "ui/Log.h"

namespace ui::appkit {

namespace {

InterfaceObject& objectOf(id receiver) {
  return *[receiver interfaceObject];
}

/// "setTypePopup:" for "typePopup".
std::string setterName(const std::string& outlet) {
  std::string name = "set" + outlet + ":";
  name[3] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[3])));
  return name;
}

/// Outlet names by the names of their setters. Needed because a setter's name does not tell whether
/// the outlet starts with a capital.
std::map<std::string, std::string>& outletsBySetter() {
  static std::map<std::string, std::string>& names = *new std::map<std::string, std::string>;
  return names;
}

void setOutlet(id receiver, SEL selector, id object) {
  objectOf(receiver).setOutlet(outletsBySetter()[sel_getName(selector)], object);
}

id outlet(id receiver, SEL selector) {
  return objectOf(receiver).outlet(sel_getName(selector));
}

void perform(id receiver, SEL selector, id sender) {
  objectOf(receiver).perform(sel_getName(selector), sender);
}

template <class Function>
void addMethod(Class objectClass, const std::string& name, Function* function, const char* types) {
  // The runtime calls it with the arguments described by `types`.
  class_addMethod(objectClass, sel_registerName(name.c_str()),
                  reinterpret_cast<IMP>(reinterpret_cast<void (*)()>(function)), types);
}

class ConnectedObject final : public InterfaceObject {
 public:
  void connect(const Connections& declared, ControlTable& controls) override {
    declared_ = &declared;
    controls_ = &controls;
  }

  void disconnect() override {
    declared_ = nullptr;
    controls_ = nullptr;
    outlets_.clear();
  }

  void setOutlet(const std::string& name, id object) override { outlets_[name] = object; }

  id outlet(const std::string& name) const override {
    const auto found = outlets_.find(name);
    return found != outlets_.end() ? found->second : nil;
  }

  void perform(const std::string& selector, id sender) const override {
    if (declared_ == nullptr) {
      return;
    }
    for (const Connections::NamedAction& action : declared_->actions()) {
      if (action.selector == selector) {
        runGuarded([&] {
          // Call a copy, because the action may destroy this object.
          const Action work = action.action;
          work(controls_->control(sender));
        });
        return;
      }
    }
  }

 private:
  std::map<std::string, id> outlets_;
  const Connections* declared_ = nullptr;
  ControlTable* controls_ = nullptr;
};

}  // namespace

void addMethods(Class objectClass, const Connections& declared) {
  for (const Connections::Outlet& declaredOutlet : declared.outlets()) {
    const std::string setter = setterName(declaredOutlet.name);
    outletsBySetter()[setter] = declaredOutlet.name;
    addMethod(objectClass, setter, &appkit::setOutlet, "v@:@");
    addMethod(objectClass, declaredOutlet.name, &appkit::outlet, "@@:");
  }
  for (const Connections::NamedAction& action : declared.actions()) {
    addMethod(objectClass, action.selector, &appkit::perform, "v@:@");
  }
}

std::unique_ptr<InterfaceObject> InterfaceObject::make() {
  return std::make_unique<ConnectedObject>();
}

}  // namespace ui::appkit

@implementation Velk_InterfaceController

- (instancetype)init {
  self = [super init];
  if (self != nil) {
    _interfaceObject = ui::appkit::InterfaceObject::make().release();
  }
  return self;
}

- (void)dealloc {
  delete _interfaceObject;
  [super dealloc];
}

- (ui::appkit::InterfaceObject*)interfaceObject {
  return _interfaceObject;
}

@end
