// Jobs that several threads do at the same time, and that come back in their order. Those that one
// thread does it does in their order, too.
//
// All calls come from one thread, the owner's, but for AddBehind. WaitForFirst waits as long as it
// is told to; Clear and the destructor set the stop flag, and wait until the threads have seen it.
#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <limits>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace quillomat {

template <typename Work>
class OrderedJobs {
 public:
  /// Does a job, by the thread of that number, and returns how heavy its result is.
  using Do = std::function<std::size_t(Work& work, std::size_t thread)>;

  /// As many threads are started as the system gives; without any, WaitForFirst itself does the
  /// jobs, as thread 0. `stop` says while jobs are to end early, since their results are worth
  /// nothing; it outlives the jobs. When the results that wait for their turn are `mostWeight`
  /// heavy, no job but the first is begun.
  OrderedJobs(std::size_t threads, std::atomic<bool>& stop, Do doWork,
              std::size_t mostWeight = std::numeric_limits<std::size_t>::max())
      : stop_(stop), do_(std::move(doWork)), mostWeight_(mostWeight) {
    threads_.reserve(threads);
    try {
      for (std::size_t i = 0; i < threads; ++i) threads_.emplace_back([this, i] { Run(i); });
    } catch (const std::exception&) {
      // The system gives no more: those that there are will do, or the owner's.
    }
  }
  OrderedJobs(const OrderedJobs&) = delete;
  OrderedJobs& operator=(const OrderedJobs&) = delete;
  OrderedJobs(OrderedJobs&&) = delete;
  OrderedJobs& operator=(OrderedJobs&&) = delete;
  /// Gives up what is being done.
  ~OrderedJobs() {
    {
      const std::lock_guard lock(mutex_);
      ending_ = true;
      stop_ = true;
    }
    workChanged_.notify_all();
    threads_.clear();  // while everything that they use is still there
  }

  /// At least one, the owner's if need be.
  [[nodiscard]] std::size_t Threads() const { return std::max<std::size_t>(threads_.size(), 1); }
  /// Those that were submitted and not dropped.
  [[nodiscard]] std::size_t Size() const {
    const std::lock_guard lock(mutex_);
    return jobs_.size();
  }

  /// Has `work` done as the last job.
  void Submit(Work work) {
    auto job = std::make_unique<Job>(std::move(work));
    {
      const std::lock_guard lock(mutex_);
      jobs_.push_back(std::move(job));
    }
    workChanged_.notify_all();
  }

  /// For the thread that does `current`: has `rest` done as the next job behind it, if need be by
  /// the same thread.
  void AddBehind(const Work& current, Work rest) {
    auto job = std::make_unique<Job>(std::move(rest));
    {
      const std::lock_guard lock(mutex_);
      const auto isCurrent = [&](const auto& other) { return &other->work == &current; };
      jobs_.insert(std::next(std::ranges::find_if(jobs_, isCurrent)), std::move(job));
    }
    workChanged_.notify_all();
  }

  /// Waits for the first job; false when it takes longer. There is one.
  [[nodiscard]] bool WaitForFirst(std::chrono::milliseconds longest) {
    std::unique_lock lock(mutex_);
    if (threads_.empty() && jobs_.front()->progress == Progress::kWaiting) {
      DoJob(*jobs_.front(), 0, lock);
    }
    return jobDone_.wait_for(lock, longest,
                             [this] { return jobs_.front()->progress == Progress::kDone; });
  }
  /// The first job, for which WaitForFirst has returned true. Throws what it has thrown.
  [[nodiscard]] Work& First() {
    const std::lock_guard lock(mutex_);
    Job& job = *jobs_.front();
    if (job.error) std::rethrow_exception(job.error);
    return job.work;
  }
  /// Takes the first job out.
  Work TakeFirst() {
    std::unique_ptr<Job> first;
    {
      const std::lock_guard lock(mutex_);
      first = std::move(jobs_.front());
      jobs_.pop_front();
      weight_ -= first->weight;
    }
    workChanged_.notify_all();
    return std::move(first->work);
  }

  /// Throws the jobs away. Meanwhile no thread is at work, and `forget` is called.
  template <typename Forget>
  void Clear(Forget forget) {
    std::unique_lock lock(mutex_);
    stop_ = true;
    jobDone_.wait(lock, [this] { return atWork_ == 0; });
    forget();
    jobs_.clear();
    weight_ = 0;
    stop_ = false;
  }

 private:
  enum class Progress { kWaiting, kAtWork, kDone };
  struct Job {
    explicit Job(Work given) : work(std::move(given)) {}

    Work work;
    Progress progress = Progress::kWaiting;
    /// Who does it, or has done it.
    std::size_t thread = 0;
    std::size_t weight = 0;
    std::exception_ptr error;
  };

  void Run(std::size_t thread) {
    std::unique_lock lock(mutex_);
    for (;;) {
      Job* job = nullptr;
      workChanged_.wait(lock, [&] {
        job = stop_ ? nullptr : NextJob(thread);
        return ending_ || job != nullptr;
      });
      if (ending_) return;
      DoJob(*job, thread, lock);
    }
  }

  /// The lock is released meanwhile.
  void DoJob(Job& job, std::size_t thread, std::unique_lock<std::mutex>& lock) {
    job.progress = Progress::kAtWork;
    job.thread = thread;
    ++atWork_;
    lock.unlock();
    std::size_t weight = 0;
    try {
      weight = do_(job.work, thread);
    } catch (...) {
      job.error = std::current_exception();
    }
    lock.lock();
    job.progress = Progress::kDone;
    job.weight = weight;
    weight_ += weight;
    --atWork_;
    jobDone_.notify_all();
  }

  /// The first that waits, but for those in front of one that the thread has done.
  [[nodiscard]] Job* NextJob(std::size_t thread) {
    const auto isDone = [&](const auto& job) {
      return job->progress != Progress::kWaiting && job->thread == thread;
    };
    const auto waits = [](const auto& job) { return job->progress == Progress::kWaiting; };
    const auto lastDone = std::find_if(jobs_.rbegin(), jobs_.rend(), isDone);
    const auto next = std::find_if(lastDone.base(), jobs_.end(), waits);
    if (next == jobs_.end() || (weight_ >= mostWeight_ && next != jobs_.begin())) return nullptr;
    return next->get();
  }

  std::atomic<bool>& stop_;
  Do do_;
  std::size_t mostWeight_;

  mutable std::mutex mutex_;
  std::condition_variable workChanged_;
  std::condition_variable jobDone_;
  // Behind the mutex.
  std::deque<std::unique_ptr<Job>> jobs_;
  std::size_t atWork_ = 0;
  /// Of those that are done.
  std::size_t weight_ = 0;
  bool ending_ = false;

  std::vector<std::jthread> threads_;
};

}  // namespace quillomat
