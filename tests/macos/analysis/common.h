// What most sources include, compiled once for the analyser: reading headers is most of its time.
#pragma once
#include <algorithm>
#include <chrono>
#include <coroutine>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "io_handles.h"
#ifdef __OBJC__
#import <AppKit/AppKit.h>
#endif
