#include "resources/ToolbarIcons.h"

#include "resources/Toolbar.h"

#include <initializer_list>
#include <map>

namespace tarnwick {

namespace {

using Shapes = std::vector<IconShape>;
using Spots = std::vector<IconSpot>;
using enum IconColour;

constexpr double thin = 1.3;
constexpr double thick = 1.8;

IconShape area(IconColour colour, const Spots& spots) {
  return {IconShape::Kind::Area, colour, 0, spots};
}
IconShape line(IconColour colour, double width, const Spots& spots) {
  return {IconShape::Kind::Line, colour, width, spots};
}
IconShape disc(IconColour colour, double width, const IconSpot& centre) {
  return {IconShape::Kind::Disc, colour, width, {centre}};
}
IconShape ring(IconColour colour, double width, const IconSpot& centre) {
  return {IconShape::Kind::Ring, colour, width, {centre}};
}

Shapes together(std::initializer_list<Shapes> parts) {
  Shapes all;
  for (const auto& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

/// Two braces, in which a method's body stands.
Shapes braces() {
  return {line(Ink, thin, {{6.5, 9}, {5, 9.4}, {5, 10.8}, {4, 11.5}, {5, 12.2}, {5, 13.6}, {6.5, 14}}),
          line(Ink, thin, {{9.5, 9}, {11, 9.4}, {11, 10.8}, {12, 11.5}, {11, 12.2}, {11, 13.6}, {9.5, 14}})};
}

Shapes pageLines() {
  return {line(Ink, thin, {{3, 1}, {13, 1}, {13, 14}, {3, 14}, {3, 1}}), line(Blue, thin, {{5, 4}, {11, 4}}),
          line(Blue, thin, {{5, 6.4}, {9, 6.4}}), line(Blue, thin, {{5, 8.8}, {11, 8.8}}),
          line(Blue, thin, {{5, 11.2}, {8, 11.2}})};
}

/// The path that a program takes through its methods.
Shapes path() {
  return {line(Blue, thin, {{2.5, 3}, {8.5, 3}, {8.5, 7.5}, {4.5, 7.5}, {4.5, 12}, {11, 12}}),
          disc(Blue, 3.4, {2.5, 3}), area(Blue, {{10.5, 9.2}, {14.5, 12}, {10.5, 14.8}})};
}

Shapes screen() {
  return {line(Ink, thin, {{1.5, 1.5}, {14.5, 1.5}, {14.5, 10}, {1.5, 10}, {1.5, 1.5}}),
          line(Ink, thick, {{8, 10}, {8, 13}}), line(Ink, thick, {{4.5, 13.5}, {11.5, 13.5}})};
}

Shapes cross(double left, double top, double side) {
  return {line(Red, 2.2, {{left, top}, {left + side, top + side}}),
          line(Red, 2.2, {{left + side, top}, {left, top + side}})};
}

Shapes stackBars() {
  return {area(Blue, {{6, 1.5}, {15, 1.5}, {15, 4.5}, {6, 4.5}}), area(Ink, {{6, 6}, {15, 6}, {15, 9}, {6, 9}}),
          area(Ink, {{6, 10.5}, {15, 10.5}, {15, 13.5}, {6, 13.5}}), area(Amber, {{0.5, 0.5}, {5, 3}, {0.5, 5.5}})};
}

Shapes bug() {
  return {line(Ink, thin, {{2, 3.5}, {5.5, 6}}),
          line(Ink, thin, {{14, 3.5}, {10.5, 6}}),
          line(Ink, thin, {{1, 8.5}, {5.5, 8.5}}),
          line(Ink, thin, {{15, 8.5}, {10.5, 8.5}}),
          line(Ink, thin, {{2, 13.5}, {5.5, 11}}),
          line(Ink, thin, {{14, 13.5}, {10.5, 11}}),
          disc(Ink, 4.6, {8, 3.4}),
          disc(Green, 7, {8, 7.6}),
          disc(Green, 7, {8, 10.4}),
          line(White, 1, {{8, 5.5}, {8, 13.5}})};
}

Shapes thread(double x) {
  return {line(Blue, thick, {{x, 1}, {x + 1.6, 3.2}, {x, 5.4}, {x - 1.6, 7.6}, {x, 9.8}, {x + 1.6, 12}, {x, 14}})};
}

Shapes question() {
  return {disc(Blue, 14, {8, 7.5}),
          line(White, thick, {{5.8, 5.8}, {6.4, 4.2}, {8, 3.6}, {9.6, 4.2}, {10, 5.6}, {8.2, 7.4}, {8, 9}}),
          disc(White, 2.2, {8, 11.4})};
}

std::map<int, Shapes> steppingIcons() {
  return {
      {COMMAND_RUN, {area(Green, {{3, 1}, {14, 7.5}, {3, 14}})}},
      {COMMAND_STEP_IN,
       together(
           {{line(Amber, 2.2, {{8, 0.8}, {8, 4.5}}), area(Amber, {{4.5, 3.8}, {11.5, 3.8}, {8, 8.2}})}, braces()})},
      {COMMAND_STEP_OVER, together({{line(Amber, 2, {{1.5, 7}, {2.6, 3.9}, {5.5, 2}, {9, 2.2}, {11.6, 4.2}}),
                                     area(Amber, {{8.6, 6.2}, {14.2, 2.2}, {14.2, 8.4}})},
                                    braces()})},
      {COMMAND_STEP_OUT,
       together({{line(Amber, 2.2, {{8, 8}, {8, 4.5}}), area(Amber, {{4.5, 5}, {11.5, 5}, {8, 0.6}})}, braces()})},
      {COMMAND_CONTINUE,
       {area(Amber, {{2, 1}, {4.6, 1}, {4.6, 14}, {2, 14}}), area(Green, {{6.2, 1}, {15, 7.5}, {6.2, 14}})}},
      {COMMAND_LOCALS,
       {line(Blue, thick, {{1.5, 4}, {7, 11.5}}), line(Blue, thick, {{7, 4}, {1.5, 11.5}}),
        line(Ink, thick, {{9, 6}, {14.8, 6}}), line(Ink, thick, {{9, 9.6}, {14.8, 9.6}})}},
      {COMMAND_DUMP_THIS,
       {area(Amber, {{2, 1}, {14, 1}, {14, 5}, {2, 5}}), line(Ink, thin, {{2, 1}, {14, 1}, {14, 14}, {2, 14}, {2, 1}}),
        line(Ink, thin, {{2, 5}, {14, 5}}), line(Blue, thin, {{4.5, 8}, {11.5, 8}}),
        line(Blue, thin, {{4.5, 11}, {9.5, 11}})}},
      {COMMAND_THREADS, together({thread(3.4), thread(8), thread(12.6)})},
      {COMMAND_WHERE, stackBars()},
      {COMMAND_LIST_SOURCE, pageLines()},
  };
}

std::map<int, Shapes> otherIcons() {
  return {
      {COMMAND_LIST_BREAKPOINTS,
       {disc(Red, 3.8, {2.8, 2.8}), disc(Red, 3.8, {2.8, 7.5}), disc(Red, 3.8, {2.8, 12.2}),
        line(Ink, thick, {{7, 2.8}, {15, 2.8}}), line(Ink, thick, {{7, 7.5}, {15, 7.5}}),
        line(Ink, thick, {{7, 12.2}, {15, 12.2}})}},
      // At a line of a page.
      {COMMAND_STOP_AT,
       {line(Ink, thin, {{7, 2}, {15, 2}}), line(Blue, 2.4, {{9, 7.5}, {15, 7.5}}),
        line(Ink, thin, {{7, 13}, {15, 13}}), disc(Red, 7.4, {4.4, 7.5})}},
      // In a method, with the brackets of its parameters.
      {COMMAND_STOP_IN,
       {disc(Red, 7, {8, 7.5}), line(Ink, thick, {{4, 1}, {2, 4}, {1.4, 7.5}, {2, 11}, {4, 14}}),
        line(Ink, thick, {{12, 1}, {14, 4}, {14.6, 7.5}, {14, 11}, {12, 14}})}},
      {COMMAND_CLEAR_BREAKPOINT,
       {ring(Red, 11, {6.5, 6.5}), line(Ink, 2.2, {{9, 9}, {14.4, 14}}), line(Ink, 2.2, {{14.4, 9}, {9, 14}})}},
      {COMMAND_TRACE_METHODS, path()},
      {COMMAND_UNTRACE_METHODS, together({path(), cross(8.5, 1, 6)})},
      {COMMAND_SHOW_MONITORS,
       together({screen(), {line(Blue, thin, {{4, 4.4}, {12, 4.4}}), line(Blue, thin, {{4, 7.2}, {9, 7.2}})}})},
      {COMMAND_SET_MONITOR,
       together({screen(), {line(Green, 2.2, {{8, 2.8}, {8, 8.8}}), line(Green, 2.2, {{5, 5.8}, {11, 5.8}})}})},
      {COMMAND_UNMONITOR, together({screen(), cross(5.6, 3.4, 4.8)})},
      {COMMAND_DEBUGGER_HELP, question()},
      // A key of the keyboard with an F.
      {COMMAND_CUSTOM_BUTTONS,
       {line(Ink, thin,
             {{2.5, 1}, {13.5, 1}, {14.5, 2}, {14.5, 13}, {13.5, 14}, {2.5, 14}, {1.5, 13}, {1.5, 2}, {2.5, 1}}),
        line(Blue, thick, {{6, 11.5}, {6, 3.8}, {11, 3.8}}), line(Blue, thick, {{6, 7.5}, {10, 7.5}})}},
      {COMMAND_DEBUGGING_HELP, bug()},
      // A door, and the way out of it.
      {COMMAND_DEBUGGER_EXIT,
       {line(Ink, thick, {{9.5, 1.5}, {2.5, 1.5}, {2.5, 13.5}, {9.5, 13.5}}), line(Red, 2.2, {{6, 7.5}, {11.5, 7.5}}),
        area(Red, {{10.5, 3.7}, {15.5, 7.5}, {10.5, 11.3}})}},
  };
}

}  // namespace

const std::vector<IconShape>& toolbarIcon(int command) {
  static const std::map<int, Shapes> icons = [] {
    auto all = steppingIcons();
    all.merge(otherIcons());
    return all;
  }();
  static const Shapes none;
  const auto found = icons.find(command);
  return found == icons.end() ? none : found->second;
}

}  // namespace tarnwick
