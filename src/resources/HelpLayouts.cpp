#include "resources/HelpLayouts.h"

#include "resources/DialogLayout.h"

namespace tarnwick {

using namespace layout;

const WebAddresses& webAddresses() {
  // To be replaced when the product has a home in the web: nothing answers under these reserved names.
  static const WebAddresses addresses = {"https://tarnwick.example/", "https://mirror.tarnwick.example/"};
  return addresses;
}

namespace {

DialogItem links() {
  return column(
      {link(HOME_LINK, webAddresses().home), row({label("Mirror:  "), link(MIRROR_LINK, webAddresses().mirror)})});
}

}  // namespace

const DialogLayout& aboutLayout() {
  static const DialogLayout dialog = {
      100, "About Tarnwick", false,
      column({
          row({icon(), column({heading("Tarnwick"), label("", 1112)})}),
          label("A small front end for the command-line tools of a Java Development Kit."),
          label("Copyright (c) 2026 The Tarnwick authors"),
          label(
              "Free software under the MIT License: you may use, copy, change and pass it on, as long as the copyright "
              "notice and the license stay with it. It comes without any warranty."),
          links(),
          row({space(), button(IDOK_CONTROL, "OK").asDefault()}).closing(),
      }),
      IDOK_CONTROL};
  return dialog;
}

const DialogLayout& helpFileLayout() {
  static const DialogLayout dialog = {186, "Unable to open usersguide.htm", false,
                                      column({
                                          label("", 1174),
                                          row({space(), button(1173, "Find usersguide.htm ...").asDefault(),
                                               button(IDCANCEL_CONTROL, "Don't open usersguide.htm")})
                                              .closing(),
                                      }),
                                      1173};
  return dialog;
}

const DialogLayout& welcomeLayout() {
  static const DialogLayout dialog = {
      200, "Welcome to Tarnwick", false,
      column({
          row({icon(), heading("Welcome to Tarnwick")}),
          label("", 1273),
          label("", 1272),
          label("For more information please consult the Tarnwick user's guide which is included in the kit. It is "
                "also available online."),
          links(),
          row({space(), button(IDOK_CONTROL, "OK").asDefault()}).closing(),
      }),
      IDOK_CONTROL};
  return dialog;
}

}  // namespace tarnwick
