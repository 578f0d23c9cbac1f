#include "source/TypeIndex.h"

#include "platform/FileSystem.h"
#include "source/JavaSourcefile.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

TypeIndex::TypeIndex(std::vector<ClassRef> entries) : TypeIndex(std::move(entries), platform::lastChange) {}

TypeIndex::TypeIndex(std::vector<ClassRef> entries, Clock clock)
    : entries_(std::move(entries)), clock_(std::move(clock)), ancestries_(entries_.size()) {
  places_.reserve(entries_.size());
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const SourceType& type = entries_[i].type;
    std::string_view name = type.name;
    std::string indexed = entries_[i].source.indexedName(type);
    if (indexed != name) name = names_.emplace_back(std::move(indexed));
    const auto [place, isNew] = places_.try_emplace(name, Places{i, i});
    if (!isNew) place->second.last = i;
  }
}

const ClassRef* TypeIndex::first(std::string_view name) const {
  const auto place = places_.find(name);
  return place == places_.end() ? nullptr : &entries_[place->second.first];
}

const ClassRef* TypeIndex::last(std::string_view name) const {
  const auto place = places_.find(name);
  return place == places_.end() ? nullptr : &entries_[place->second.last];
}

std::optional<std::time_t> TypeIndex::timeOf(const JavaSourcefile& source) const {
  const auto [place, isNew] = times_.try_emplace(&source);
  if (isNew) place->second = clock_(source.name().fullName());
  return place->second;
}

const TypeIndex::Places* TypeIndex::find(const JavaSourcefile& user, const std::string& supertype) const {
  for (const auto& name : user.meaningsOf(supertype)) {
    const auto place = places_.find(name);
    if (place != places_.end()) return &place->second;
  }
  return nullptr;
}

bool TypeIndex::isOlder(const JavaSourcefile& user, const std::string& supertype,
                        std::optional<std::time_t> classTime) const {
  // Nobody is built on more than all types of the index. A circle would be; it shows as a way without end.
  if (entries_.empty()) return false;
  const Places* const places = find(user, supertype);
  if (!places) return true;
  const Ancestry& ancestry = ancestryOf(places->last);
  return !ancestry.endless && ancestry.height < entries_.size() && ancestry.timesKnown && classTime &&
         ancestry.newest < *classTime;
}

/// Walks with a stack of its own: chains may be longer than the thread's stack is deep.
const TypeIndex::Ancestry& TypeIndex::ancestryOf(std::size_t entry) const {
  if (ancestries_[entry].state == Ancestry::State::Fresh) {
    std::vector<Step> way{begin(entry)};
    while (!way.empty()) look(way);
  }
  return ancestries_[entry];
}

/// One step: looks at the next supertype of the last name on the way.
void TypeIndex::look(std::vector<Step>& way) const {
  Step& step = way.back();
  Ancestry& ancestry = ancestries_[step.entry];
  const SourceType* record = step.record;
  const std::size_t extended = record ? record->extendsList.size() : 0;
  const std::size_t all = record ? extended + record->implementsList.size() : 0;
  if (step.looked == all) {
    ancestry.state = Ancestry::State::Done;
    way.pop_back();
    return;
  }
  const auto& name =
      step.looked < extended ? record->extendsList[step.looked] : record->implementsList[step.looked - extended];
  const Places* const places = find(entries_[step.entry].source, name);
  Ancestry foreign;
  foreign.state = Ancestry::State::Done;
  foreign.newest = ancestry.newest;
  const Ancestry& above = places ? ancestries_[places->last] : foreign;
  if (above.state == Ancestry::State::Fresh) {
    way.push_back(begin(places->last));
    return;
  }
  ++step.looked;
  ancestry.endless |= above.endless || above.state == Ancestry::State::Open;
  ancestry.timesKnown &= above.timesKnown;
  ancestry.height = std::max(ancestry.height, above.height + 1);
  ancestry.newest = std::max(ancestry.newest, above.newest);
}

TypeIndex::Step TypeIndex::begin(std::size_t entry) const {
  const ClassRef& ref = entries_[entry];
  const auto time = timeOf(ref.source);
  Ancestry& ancestry = ancestries_[entry];
  ancestry.state = Ancestry::State::Open;
  ancestry.timesKnown = time.has_value();
  ancestry.newest = time.value_or(0);
  return {entry, recordIn(ref.source, ref.type.name), 0};
}

/// The last one of that name: it need not be the one that the entry refers to.
const SourceType* TypeIndex::recordIn(const JavaSourcefile& source, const std::string& name) const {
  const auto [place, isNew] = records_.try_emplace(&source);
  Records& records = place->second;
  if (isNew) {
    for (const auto& type : source.types()) records[type->name] = type.get();
  }
  const auto record = records.find(name);
  return record == records.end() ? nullptr : record->second;
}

}  // namespace tarnwick
