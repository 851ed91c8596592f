// Prints each selector that a controller class of the bundle lists, as "CLASS SELECTOR".
#include <iostream>

#include "platform/Bundle.h"

int main() {
  for (const platform::ControllerClass& known : platform::bundleClasses()) {
    for (const platform::Method& method : known.make()->methods()) {
      std::cout << known.name << ' ' << method.selector.name << '\n';
    }
  }
}
