#include "suite/desktop/preview/PageStore.h"

namespace suite::desktop {

namespace {

constexpr int Slice = 30; // milliseconds, between which the window answers

} // namespace

PageStore::PageStore(std::unique_ptr<paper::PageSource> source, QObject* parent)
    : QObject(parent), source_(std::move(source)), sheet_(source_->sheet()) {
    connect(&timer_, &QTimer::timeout, this, [this] { make(Slice); });
    make(0);
    if (source_)
        timer_.start(0);
}

void PageStore::make(int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    try {
        do {
            paper::Page page;
            if (!source_->next(page)) {
                source_.reset();
                break;
            }
            pages_.push_back(std::move(page));
        } while (clock.elapsed() < milliseconds);
    } catch (...) {
        failure_ = std::current_exception();
        source_.reset();
    }
    if (!source_)
        timer_.stop();
    Q_EMIT grown();
}

} // namespace suite::desktop
