// Whether a change reaches those who read a value: what a view would notice.
#pragma once

#include "runtime/Observable.h"

namespace vantrel::test {

// Whether an observer of what `reads` reads is told while `changes` runs.
template <class Reads, class Changes>
bool wakes(Reads reads, Changes changes) {
    bool isTold = false;
    runtime::Observer observer([&isTold] { isTold = true; });
    observer.track(reads);
    changes();
    return isTold;
}

}  // namespace vantrel::test
