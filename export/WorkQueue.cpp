#include "export/WorkQueue.h"

#include <QThread>
#include <utility>

namespace zg {

namespace {

constexpr std::size_t piecesPerWorker = 4;

/// What the toolkit keeps for each thread, such as the faces of fonts, it frees in the thread itself only if
/// the thread is its own.
class Worker : public QThread {
 public:
    explicit Worker(std::function<void()> work) : work_(std::move(work)) {}

 protected:
    void run() override { work_(); }

 private:
    std::function<void()> work_;
};

}  // namespace

WorkQueue::WorkQueue(int workers, std::function<void(const Result&)> tell)
    : tell_(std::move(tell)), capacity_(static_cast<std::size_t>(workers) * piecesPerWorker) {
    for (int i = 0; i < workers; ++i) {
        auto worker = std::make_unique<Worker>([this] { workOn(); });
        worker->start();
        if (!worker->isRunning() && !worker->isFinished()) return;  // those that exist are enough
        workers_.push_back(std::move(worker));
    }
}

WorkQueue::~WorkQueue() {
    {
        const std::lock_guard lock(mutex_);
        closed_ = true;
    }
    changed_.notify_all();
    for (const std::unique_ptr<QThread>& worker : workers_) worker->wait();
}

WorkQueue::Piece* WorkQueue::nextPiece() {
    for (Piece& piece : pieces_)
        if (!piece.begun) return &piece;
    return nullptr;
}

void WorkQueue::workOn() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return closed_ || nextPiece() != nullptr; });
        Piece* piece = nextPiece();
        if (piece == nullptr) return;
        piece->begun = true;
        lock.unlock();
        Result result = piece->work();  // a piece stays in the queue until it is reported
        lock.lock();
        piece->result = std::move(result);
        piece->work = nullptr;
        piece->ready = true;
        changed_.notify_all();
    }
}

void WorkQueue::tellReady(std::unique_lock<std::mutex>& lock) {
    while (!pieces_.empty() && pieces_.front().ready) {
        const Result result = std::move(pieces_.front().result);
        pieces_.pop_front();
        lock.unlock();
        tell_(result);
        lock.lock();
    }
}

void WorkQueue::add(std::function<Result()> work) {
    if (workers_.empty()) return tell_(work());
    std::unique_lock lock(mutex_);
    tellReady(lock);
    while (pieces_.size() >= capacity_) {
        changed_.wait(lock, [this] { return pieces_.front().ready; });
        tellReady(lock);
    }
    Piece piece;
    piece.work = std::move(work);
    pieces_.push_back(std::move(piece));
    lock.unlock();
    changed_.notify_all();
}

void WorkQueue::finish() {
    std::unique_lock lock(mutex_);
    tellReady(lock);
    while (!pieces_.empty()) {
        changed_.wait(lock, [this] { return pieces_.front().ready; });
        tellReady(lock);
    }
}

}  // namespace zg
