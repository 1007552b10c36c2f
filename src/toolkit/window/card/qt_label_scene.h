// The labels as the card paints them: copies of the program's, compared after each event.
#pragma once

#include <cstddef>
#include <vector>

#include <QtGui/QRegion>

#include "toolkit/model/window_parts.h"
#include "toolkit/window/card/qt_label_lookup.h"

class QPainter;

namespace toolkit {

class LabelScene {
  public:
    /// Copies what the program changed and returns the pixels of the card that it changes.
    [[nodiscard]] QRegion takeOver(const WindowParts& parts);

    /// Paints the visible labels that touch the area, the hindmost first.
    void paint(QPainter& painter, const QRegion& area) const;

    /// From back to front.
    [[nodiscard]] std::vector<Label> visibleLabels() const;

  private:
    /// What was painted for a label, with the pixels that it covers.
    struct Painted {
        Label label;
        QRect place;
    };

    [[nodiscard]] const Painted& at(LabelPlace place) const;
    void takeOver(Painted& painted, const Label& label);
    void removeBehind(std::vector<Painted>& group, std::size_t count);
    void sort();

    std::vector<std::vector<Painted>> painted_; ///< by group, the single labels last
    std::vector<LabelPlace> order_;             ///< the visible ones, the hindmost first
    std::vector<QRect> changes_;
};

} // namespace toolkit
