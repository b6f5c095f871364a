#pragma once

#include <map>
#include <string>

using ClassCounts = std::map<std::string, int>;

/// From here on objects that this thread makes are known.
void watchObjects();

/// Of the known objects, how many of each class there are. To be called by the thread that watches.
ClassCounts liveObjects();

/// What there is more of than `before`, a class a line, in `text`; returns how many objects these are.
int moreThan(const ClassCounts &before, std::string &text);
