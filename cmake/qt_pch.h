// Precompiled header of the rooms with widgets: the heavy headers only, so that it is rebuilt almost never.
#pragma once
#include <QtCore>
#include <QtGui>
#include <QtWidgets>
#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>
