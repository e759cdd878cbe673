#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <thread>
#include <vector>

namespace morvane {

/// Spreads independent pieces of work over the cores and hands the results back in their order, on the thread
/// that asks. Only so many pieces are under way at a time, so the memory does not grow with their number; the
/// threads are kept until the last piece.
/// The work must be a function of its index that touches nothing which another piece touches: no messages, no
/// store, no shared state.
template <class Result>
class OrderedWork {
public:
    OrderedWork(int count, std::function<Result(int)> work)
        : count_(count), work_(std::move(work)), cores_(std::max(std::thread::hardware_concurrency(), 1U)) {
        while (pending_.size() <= cores_ && started_ < count_)
            startNext();
        while (count_ > 1 && threads_.size() < std::min(cores_, pending_.size()))
            threads_.emplace_back([this] { workUntilTheEnd(); });
    }
    /// Waits for what is under way; what was not asked for is dropped.
    ~OrderedWork() {
        {
            const std::lock_guard lock(mutex_);
            isEnding_ = true;
        }
        isWaiting_.notify_all();
    }

    /// The next result; rethrows what its piece threw. Call it at most `count` times.
    Result next() {
        std::future<Result> first = std::move(pending_.front());
        pending_.pop_front();
        if (started_ < count_) startNext();
        if (threads_.empty()) waiting_.front()(); // a single piece is not worth a thread
        return first.get();
    }

    /// The next result is there: nobody has to wait for it. False behind the last.
    bool isNextReady() const {
        using std::chrono::seconds;
        if (pending_.empty()) return false;
        return threads_.empty() || pending_.front().wait_for(seconds(0)) == std::future_status::ready;
    }

private:
    using Piece = std::packaged_task<Result()>;

    void startNext() {
        Piece piece([this, index = started_++] { return work_(index); });
        pending_.push_back(piece.get_future());
        {
            const std::lock_guard lock(mutex_);
            waiting_.push_back(std::move(piece));
        }
        isWaiting_.notify_one();
    }

    void workUntilTheEnd() {
        while (true) {
            std::unique_lock lock(mutex_);
            isWaiting_.wait(lock, [this] { return isEnding_ || !waiting_.empty(); });
            if (isEnding_) return;
            Piece piece = std::move(waiting_.front());
            waiting_.pop_front();
            lock.unlock();
            piece();
        }
    }

    int count_;
    int started_ = 0;
    std::function<Result(int)> work_;
    std::size_t cores_;
    std::deque<std::future<Result>> pending_; ///< in their order, asked for by nobody yet
    std::mutex mutex_;
    std::condition_variable isWaiting_;
    bool isEnding_ = false;
    std::deque<Piece> waiting_;         ///< for a thread
    std::vector<std::jthread> threads_; ///< the last: they use all others
};

/// The same for pieces so small that handing each to another thread would cost more than it saves.
template <class Result>
class OrderedShares {
public:
    OrderedShares(std::size_t count, std::function<Result(std::size_t)> work)
        : shares_(static_cast<int>((count + share - 1) / share), [count, work = std::move(work)](int index) {
              std::deque<Result> results;
              const std::size_t first = static_cast<std::size_t>(index) * share;
              for (std::size_t i = first; i < std::min(first + share, count); ++i)
                  results.push_back(work(i));
              return results;
          }) {}

    /// As OrderedWork.
    Result next() {
        if (results_.empty()) results_ = shares_.next();
        Result first = std::move(results_.front());
        results_.pop_front();
        return first;
    }
    bool isNextReady() const { return !results_.empty() || shares_.isNextReady(); }

private:
    static constexpr std::size_t share = 8;

    OrderedWork<std::deque<Result>> shares_;
    std::deque<Result> results_;
};

} // namespace morvane
