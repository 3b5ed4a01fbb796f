#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "runtime/Observable.h"

namespace vantrel::runtime {
namespace {

using Trace = std::vector<std::string>;

class ObservableTest : public testing::Test {
  protected:
    std::function<void()> noting(std::string what) {
        return [this, what = std::move(what)] { trace.push_back(what); };
    }

    Trace trace;
    Observable<int> value{1};
    Observable<int> other{1};
    Observer observer{noting("changed")};
};

TEST_F(ObservableTest, KeepsItsValue) {
    value.set(7);
    EXPECT_EQ(value.get(), 7);
}

TEST_F(ObservableTest, BeginsWithAnEmptyValueUnlessToldOtherwise) { EXPECT_EQ(Observable<int>().get(), 0); }

TEST_F(ObservableTest, TrackingGivesWhatTheReadsGive) {
    EXPECT_EQ(observer.track([this] { return value.get() + other.get(); }), 2);
}

TEST_F(ObservableTest, TellsWhoReadItWhileTracking) {
    observer.track([this] { value.get(); });
    value.set(2);
    EXPECT_EQ(trace, Trace{"changed"});
}

TEST_F(ObservableTest, IsSilentWhenSetToAnEqualValue) {
    observer.track([this] { value.get(); });
    value.set(1);
    EXPECT_EQ(trace, Trace{});
}

TEST_F(ObservableTest, HasItsNewValueWhenItTells) {
    int seen = 0;
    Observer reading([&] { seen = value.get(); });
    reading.track([this] { value.get(); });
    value.set(2);
    EXPECT_EQ(seen, 2);
}

TEST_F(ObservableTest, TellsNobodyWhoReadItWithoutTracking) {
    observer.track([] {});
    value.get();
    value.set(2);
    EXPECT_EQ(trace, Trace{});
}

TEST_F(ObservableTest, TellsOnlyOnceUntilItIsReadAgain) {
    observer.track([this] { value.get(); });
    value.set(2);
    value.set(3);
    EXPECT_EQ(trace, Trace{"changed"});
    observer.track([this] { value.get(); });
    value.set(4);
    EXPECT_EQ(trace, (Trace{"changed", "changed"}));
}

TEST_F(ObservableTest, TellsOnceHoweverOftenItWasRead) {
    observer.track([this] {
        value.get();
        value.get();
    });
    value.set(2);
    EXPECT_EQ(trace, Trace{"changed"});
}

TEST_F(ObservableTest, TellsOnceForSeveralValuesThatChange) {
    observer.track([this] {
        value.get();
        other.get();
    });
    value.set(2);
    other.set(2);
    EXPECT_EQ(trace, Trace{"changed"});
}

TEST_F(ObservableTest, WatchesOnlyWhatTheLastTrackingRead) {
    observer.track([this] { value.get(); });
    observer.track([this] { other.get(); });
    value.set(2);
    EXPECT_EQ(trace, Trace{});
    other.set(2);
    EXPECT_EQ(trace, Trace{"changed"});
}

TEST_F(ObservableTest, TellsItsObserversInTheOrderInWhichTheyReadIt) {
    Observer first(noting("first"));
    Observer second(noting("second"));
    second.track([this] { value.get(); });
    first.track([this] { value.get(); });
    value.set(2);
    EXPECT_EQ(trace, (Trace{"second", "first"}));
}

TEST_F(ObservableTest, AReadInsideANestedTrackingBelongsToTheInnerObserverOnly) {
    Observer inner(noting("inner"));
    observer.track([&] {
        inner.track([this] { value.get(); });
        other.get();
    });
    value.set(2);
    EXPECT_EQ(trace, Trace{"inner"});
    other.set(2);
    EXPECT_EQ(trace, (Trace{"inner", "changed"}));
}

TEST_F(ObservableTest, TellsNoObserverThatDied) {
    {
        Observer brief(noting("brief"));
        brief.track([this] { value.get(); });
    }
    value.set(2);
    EXPECT_EQ(trace, Trace{});
}

TEST_F(ObservableTest, MayDieBeforeItsObserver) {
    std::optional<Observable<int>> brief(1);
    observer.track([&] {
        brief->get();
        value.get();
    });
    brief.reset();
    value.set(2);
    EXPECT_EQ(trace, Trace{"changed"});
}

TEST_F(ObservableTest, MayDieWhileItsObserverStillTracks) {
    observer.track([this] {
        { Observable<int>(1).get(); }
        value.get();
    });
    value.set(2);
    EXPECT_EQ(trace, Trace{"changed"});
}

TEST_F(ObservableTest, AnObserverMayReadAgainWhileItIsToldAndWaitsForTheNextChange) {
    Observer* self = nullptr;
    Observer eager([&] {
        trace.push_back("eager");
        self->track([this] { value.get(); });
    });
    self = &eager;
    eager.track([this] { value.get(); });
    value.set(2);
    EXPECT_EQ(trace, Trace{"eager"});
    value.set(3);
    EXPECT_EQ(trace, (Trace{"eager", "eager"}));
}

TEST_F(ObservableTest, TellsNoObserverThatDiesWhileAnotherIsTold) {
    auto victim = std::make_unique<Observer>(noting("victim"));
    Observer killer([&] { victim.reset(); });
    killer.track([this] { value.get(); });
    victim->track([this] { value.get(); });
    observer.track([this] { value.get(); });
    value.set(2);
    EXPECT_EQ(trace, Trace{"changed"});
}

TEST_F(ObservableTest, AnotherObserversDeathDoesNotTellOneTwice) {
    auto victim = std::make_unique<Observer>(noting("victim"));
    Observer* self = nullptr;
    Observer killer([&] {
        trace.push_back("killer");
        victim.reset();
        self->track([this] { value.get(); });
    });
    self = &killer;
    killer.track([this] { value.get(); });
    victim->track([this] { value.get(); });
    value.set(2);
    EXPECT_EQ(trace, Trace{"killer"});
}

TEST_F(ObservableTest, AnotherObservableMayDieWhileItsObserverIsTold) {
    std::optional<Observable<int>> brief(1);
    Observer killer([&] { brief.reset(); });
    killer.track([&] {
        value.get();
        brief->get();
    });
    observer.track([&] {
        value.get();
        brief->get();
    });
    value.set(2);
    EXPECT_EQ(trace, Trace{"changed"});
}

TEST_F(ObservableTest, AChangeInsideATellingTellsTheOthersOnce) {
    Observer changing([this] { value.set(3); });
    changing.track([this] { value.get(); });
    observer.track([this] { value.get(); });
    value.set(2);
    EXPECT_EQ(trace, Trace{"changed"});
    EXPECT_EQ(value.get(), 3);
}

TEST_F(ObservableTest, AChangeInsideATellingTellsWhoReadTheValueInBetween) {
    Observer* self = nullptr;
    Observer first([&] {
        trace.push_back("first " + std::to_string(value.get()));
        if (value.get() < 3) self->track([this] { value.get(); });
    });
    self = &first;
    Observer second([this] {
        trace.push_back("second");
        value.set(3);
    });
    first.track([this] { value.get(); });
    second.track([this] { value.get(); });
    value.set(2);
    EXPECT_EQ(trace, (Trace{"first 2", "second", "first 3"}));
}

TEST_F(ObservableTest, AChangeOfAnotherInsideATellingTellsItsObserversAtOnce) {
    Observer changing([this] {
        other.set(2);
        trace.push_back("changing");
    });
    changing.track([this] { value.get(); });
    observer.track([this] { other.get(); });
    value.set(2);
    EXPECT_EQ(trace, (Trace{"changed", "changing"}));
}

}  // namespace
}  // namespace vantrel::runtime
