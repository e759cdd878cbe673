#pragma once

#include <deque>
#include <functional>
#include <future>
#include <thread>

namespace morvane {

/// Spreads independent pieces of work over the cores and hands the results back in their order, on the thread
/// that asks. Only so many pieces are under way at a time, so the memory does not grow with their number.
/// The work must be a pure function of its index: no messages, no store, no shared state.
template <class Result>
class OrderedWork {
public:
    OrderedWork(int count, std::function<Result(int)> work)
        : count_(count), work_(std::move(work)), ahead_(std::thread::hardware_concurrency() + 1) {
        while (pending_.size() < ahead_ && started_ < count_)
            startNext();
    }
    /// Waits for what is under way; results not asked for are dropped.
    ~OrderedWork() = default;

    /// The next result; rethrows what its piece threw. Call it at most `count` times.
    Result next() {
        std::future<Result> first = std::move(pending_.front());
        pending_.pop_front();
        if (started_ < count_) startNext();
        return first.get();
    }

private:
    void startNext() { pending_.push_back(std::async(std::launch::async, work_, started_++)); }

    int count_;
    int started_ = 0;
    std::function<Result(int)> work_;
    std::size_t ahead_;
    std::deque<std::future<Result>> pending_;
};

} // namespace morvane
