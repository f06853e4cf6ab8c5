#include "engine/parallel/piece_pool.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace quillomat {

PiecePool::PiecePool(const ScanSettings& settings, const ScanChoices& choices,
                     const WordLists& lists, std::size_t threads) {
  threads_.reserve(threads);
  for (std::size_t i = 0; i < std::max<std::size_t>(threads, 1); ++i) {
    scanners_.push_back(std::make_unique<PieceScanner>(settings, choices, lists, stop_));
  }
  try {
    for (std::size_t i = 0; i < threads; ++i) threads_.emplace_back([this, i] { Work(i); });
  } catch (const std::exception&) {
    // The system gives no more: those that there are will do, or the owner's.
  }
}

PiecePool::~PiecePool() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
    stop_ = true;
  }
  workChanged_.notify_all();
  threads_.clear();  // while everything that they use is still there
}

void PiecePool::Work(std::size_t scanner) {
  std::unique_lock lock(mutex_);
  for (;;) {
    Job* job = nullptr;
    workChanged_.wait(lock, [&] {
      job = stop_ ? nullptr : NextJob();
      return ending_ || job != nullptr;
    });
    if (ending_) return;
    Do(*job, scanner, lock);
  }
}

/// The lock is released meanwhile.
void PiecePool::Do(Job& job, std::size_t scanner, std::unique_lock<std::mutex>& lock) {
  job.progress = Progress::kAtWork;
  ++atWork_;
  lock.unlock();
  job.piece.scanner = scanner;
  try {
    job.piece.count = scanners_[scanner]->Scan(job.piece.text.Text(), job.piece.settings);
  } catch (...) {
    job.error = std::current_exception();
    scanners_[scanner]->ForgetWords();  // which may be half a word
  }
  lock.lock();
  job.progress = Progress::kDone;
  --atWork_;
  jobDone_.notify_all();
}

PiecePool::Job* PiecePool::NextJob() {
  const auto waits = [](const auto& job) { return job->progress == Progress::kWaiting; };
  const auto next = std::ranges::find_if(pieces_, waits);
  return next == pieces_.end() ? nullptr : next->get();
}

void PiecePool::Submit(TextPiece text, const ScanSettings& settings) {
  auto job = std::make_unique<Job>();
  job->piece.text = std::move(text);
  job->piece.settings = settings;
  {
    const std::lock_guard lock(mutex_);
    pieces_.push_back(std::move(job));
  }
  workChanged_.notify_one();
}

bool PiecePool::WaitForFirst(std::chrono::milliseconds longest) {
  std::unique_lock lock(mutex_);
  if (threads_.empty() && pieces_.front()->progress == Progress::kWaiting) {
    Do(*pieces_.front(), 0, lock);
  }
  return jobDone_.wait_for(lock, longest,
                           [this] { return pieces_.front()->progress == Progress::kDone; });
}

const PiecePool::Piece& PiecePool::First() const {
  const std::lock_guard lock(mutex_);
  const Job& job = *pieces_.front();
  if (job.error) std::rethrow_exception(job.error);
  return job.piece;
}

TextPiece PiecePool::DropFirst() {
  const std::lock_guard lock(mutex_);
  TextPiece text = std::move(pieces_.front()->piece.text);
  pieces_.pop_front();
  return text;
}

/// Afterwards no thread is at work, and none begins before the lock is released.
void PiecePool::Clear() {
  std::unique_lock lock(mutex_);
  stop_ = true;
  jobDone_.wait(lock, [this] { return atWork_ == 0; });
  for (const auto& scanner : scanners_) scanner->ForgetWords();
  pieces_.clear();
  stop_ = false;
}

}  // namespace quillomat
