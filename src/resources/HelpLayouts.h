// The layouts of what greets and helps, and the addresses that they name.
#pragma once

#include <string>

namespace tarnwick {

struct DialogLayout;

/// Where the product lives in the web.
struct WebAddresses {
  std::string home;
  std::string mirror;
};
const WebAddresses& webAddresses();

/// 100: "About Tarnwick".
const DialogLayout& aboutLayout();
/// 186: "Unable to open usersguide.htm".
const DialogLayout& helpFileLayout();
/// 200: "Welcome to Tarnwick".
const DialogLayout& welcomeLayout();

/// The links of the About and the Welcome dialog.
enum LinkControl { MIRROR_LINK = 1177, HOME_LINK = 1178 };

}  // namespace tarnwick
