#include "measure/peaks.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "frame/memory.h"
#include "frame/status.h"
#include "measure/level_runs.h"
#include "measure/peak_fit.h"

namespace quorvan {

// What a stream keeps between blocks. The arrays are views of the thread's peakBuffer.
struct PeakStreamState {
    Count width;           // w
    Size processed;        // windows done so far
    double* coefficients;  // [3 w], the fit matrix
    double* window;        // [w], a window across two blocks
    double* history;       // [w], the last samples of earlier blocks
    double* lastFit;       // [3], the fit of the window before, which tells the last trend too
};

namespace {

struct Parabola {
    double c0, c1, c2;

    double secondDerivative() const { return 2 * c2; }
    double vertex() const { return -c1 / secondDerivative(); }
    double at(double t) const { return (c2 * t + c1) * t + c0; }
};

double HalfWidth(Count w) { return (w - 1) / 2.0; }
// How far from the middle of a window its apex may lie: its half, and ten roundings of 1.
double Reach(Count w) { return HalfWidth(w) * 0.5 + 2.220446049250313e-15; }

std::size_t BufferSize(Count w) { return 5 * static_cast<std::size_t>(w) + 3; }

void Release(ThreadState* thread) {
    HeapFree(thread->peakState);
    HeapFree(thread->peakBuffer);
    thread->peakState = nullptr;
    thread->peakBuffer = nullptr;
}

Status Allocate(ThreadState* thread, const PeakRequest& request) {
    if (request.first) {
        HeapFree(thread->peakBuffer);
        thread->peakBuffer = Block<double>(BufferSize(request.width)).release();
        if (!thread->peakBuffer) return status::kOutOfMemory;
    }
    if (!thread->peakState) thread->peakState = Block<PeakStreamState>(1).release();
    return thread->peakState ? status::kSuccess : status::kOutOfMemory;
}

// The vertex of the window's parabola, or of the one before where that is nearer, if it lies in the middle half of the
// window and beyond the threshold.
bool PeakVertex(const PeakRequest& request, Size processed, Parabola fit, const Parabola& before, Peak* peak) {
    if (std::fabs(fit.secondDerivative()) < kFlat) return false;
    double v = fit.vertex();
    if (processed > 0 && v < -0.5) {
        if (before.secondDerivative() == 0) return false;
        const double vertexBefore = before.vertex();
        if (std::fabs(v) > std::fabs(vertexBefore)) {
            v = vertexBefore;
            fit = before;
            --processed;
        }
    }
    if (std::fabs(v) > Reach(request.width)) return false;
    const double second = fit.secondDerivative();
    *peak = {static_cast<double>(processed) + HalfWidth(request.width) + v, fit.at(v), second};
    if (request.polarity == kPeaks) return second < 0 && peak->amplitude > request.threshold;
    if (request.polarity == kValleys) return second > 0 && peak->amplitude < request.threshold;
    return false;
}

// Two windows can find one apex: of peaks less than a sample apart the better one stands. The memory of the last one
// is that of this call, deliberately.
bool PeakStore(const PeakRequest& request, const Peak& peak, PeakList* list) {
    Peak* const last = list->last();
    if (!last || !(std::fabs(peak.location - last->location) < 1.0)) return list->add(peak);
    const bool better =
        request.polarity == kPeaks ? peak.amplitude > last->amplitude : peak.amplitude < last->amplitude;
    if (better) *last = peak;
    return true;
}

// Walks from window to window. Only those that can hold an apex are looked at one by one.
class Scan {
public:
    Scan(PeakStreamState* state, const PeakRequest& request, PeakList* list)
        : state_(state), request_(request), list_(list) {
        // Windows of three and four samples are too short for a trend; their curvature alone decides.
        rule_ = {request.width > 4, request.polarity == kPeaks ? -1.0 : 1.0, Reach(request.width)};
        // The first window has none before it, and is no turn of the trend.
        if (state->processed == 0)
            kPeakFitLoops().fit(state->coefficients, state->width, state->history, 1, &c0_[0], &c1_[0], &c2_[0]);
        else
            Remember({state->lastFit[0], state->lastFit[1], state->lastFit[2]});
    }

    // Adjacent windows inside one array. False when memory is exhausted.
    bool windows(const double* x, Size count) {
        for (Size done = 0; done < count;) {
            const Count batch = static_cast<Count>(std::min(count - done, Size{kBatch}));
            if (!few(x + done, batch)) return false;
            done += batch;
        }
        return true;
    }

    ~Scan() {
        state_->lastFit[0] = c0_[0];
        state_->lastFit[1] = c1_[0];
        state_->lastFit[2] = c2_[0];
    }

private:
    static constexpr Count kBatch = 256;

    void Remember(const Parabola& fit) {
        c0_[0] = fit.c0;
        c1_[0] = fit.c1;
        c2_[0] = fit.c2;
    }
    Parabola fit(Count slot) const { return {c0_[slot], c1_[slot], c2_[slot]}; }

    bool few(const double* x, Count count) {
        const PeakFitLoops& loops = kPeakFitLoops();
        loops.fit(state_->coefficients, state_->width, x, count, c0_ + 1, c1_ + 1, c2_ + 1);
        Count places[kBatch + 1];
        const Count found = loops.apexes(c1_ + 1, c2_ + 1, count, rule_, places);
        for (Count k = 0; k < found; ++k) {
            const Count place = places[k];
            Peak peak;
            if (PeakVertex(request_, state_->processed + place, fit(place + 1), fit(place), &peak) &&
                !PeakStore(request_, peak, list_))
                return false;
        }
        Remember(fit(count));
        state_->processed += count;
        return true;
    }

    PeakStreamState* const state_;
    const PeakRequest& request_;
    PeakList* const list_;
    ApexRule rule_;
    // Slot 0 is of the window before.
    double c0_[kBatch + 1], c1_[kBatch + 1], c2_[kBatch + 1];
};

// Window i holds the history from sample i on, and `data` behind it. The window of the last samples alone waits for the
// next block, whose history it is.
Status PeakScan(PeakStreamState* state, const PeakRequest& request, const double* data, Count remaining,
                PeakList* list) {
    const Count w = state->width;
    const Size windows = Size{remaining} + request.last;
    Scan scan(state, request, list);
    // In the first block the history stands before the data.
    if (request.first) return scan.windows(request.x, windows) ? status::kSuccess : status::kOutOfMemory;
    Count i = 0;
    for (; i < w && i < windows; ++i) {
        std::copy(state->history + i, state->history + w, state->window);
        std::copy(data, data + i, state->window + (w - i));
        if (!scan.windows(state->window, 1)) return status::kOutOfMemory;
    }
    return scan.windows(data, windows - i) ? status::kSuccess : status::kOutOfMemory;
}

Status PeakRun(PeakStreamState* state, double* buffer, const PeakRequest& request, PeakArrays* found) {
    const Count w = request.width;
    if (request.n < w) return status::kWidthOutOfRange;
    if (!buffer) return status::kStateNotInitialized;
    const double* data = request.x;
    Count remaining = request.n;
    if (request.first) {
        const std::size_t width = static_cast<std::size_t>(w);
        *state = {w, 0, buffer, buffer + 3 * width, buffer + 4 * width, buffer + 5 * width};
        if (const Status failure = PeakFitMatrix(w, state->coefficients)) return failure;
        std::fill(state->lastFit, state->lastFit + 3, 0.0);
        std::copy(data, data + w, state->history);
        data += w;
        remaining -= w;
    } else if (w != state->width) {
        return status::kInvalidDimensions;
    }

    PeakList list;
    if (const Status failure = PeakScan(state, request, data, remaining, &list)) return failure;
    const Count kept = std::max(w - remaining, 0), taken = w - kept;
    std::memmove(state->history, state->history + taken, sizeof(double) * static_cast<std::size_t>(kept));
    std::copy(data + (remaining - taken), data + remaining, state->history + kept);
    return list.copy(found);
}

}  // namespace

Status PeakDetect(ThreadState* thread, const PeakRequest& request, PeakArrays* found) noexcept {
    *found = {};
    Status outcome = status::kInvalidSelection;
    if (request.width >= 3 && request.width <= kWidestDetector) outcome = Allocate(thread, request);
    if (outcome == status::kSuccess) outcome = PeakRun(thread->peakState, thread->peakBuffer, request, found);
    if (outcome != status::kSuccess || request.last) Release(thread);
    return outcome;
}

}  // namespace quorvan
