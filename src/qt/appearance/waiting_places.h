// WaitingPlaces: the places on the screen that wait for something to be fetched, and are painted again when
// it has come.
#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>

#include <vector>

namespace quill {

struct Spot {
    QPointer<QWidget> Surface;
    QRect Place; // pixels
};

class WaitingPlaces {
public:
    void Add(const Spot& spot) {
        for (const auto& known : spots_)
            if (known.Surface == spot.Surface && known.Place == spot.Place) return;
        spots_.push_back(spot);
    }
    void Repaint() {
        for (const auto& spot : spots_)
            if (spot.Surface) spot.Surface->update(spot.Place);
        spots_.clear();
    }

private:
    std::vector<Spot> spots_;
};

} // namespace quill
