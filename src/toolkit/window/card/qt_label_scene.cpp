#include "toolkit/window/card/qt_label_scene.h"

#include <algorithm>

#include <QtGui/QPainter>

#include "toolkit/window/card/qt_label_painter.h"

namespace toolkit {
namespace {

/// Beyond so many rectangles their union costs more than painting the area around them.
constexpr std::size_t mostSeparateChanges = 64;

/// Whether both paint the same pixels; a Tag isn't painted, and what is hidden has no looks.
bool looksAlike(const Label& left, const Label& right) {
    if (left.Visible != right.Visible) return false;
    if (!left.Visible) return true;
    return left.Left == right.Left && left.Top == right.Top && left.Width == right.Width &&
           left.Height == right.Height && left.Stack == right.Stack && left.Clips == right.Clips &&
           left.ForeColor == right.ForeColor && left.BackColor == right.BackColor &&
           left.BackStyle == right.BackStyle && left.Alignment == right.Alignment &&
           left.Lowered == right.Lowered && left.Caption == right.Caption &&
           left.Font == right.Font;
}

QRegion unionOf(const std::vector<QRect>& rectangles) {
    QRegion region;
    if (rectangles.size() <= mostSeparateChanges) {
        for (const QRect& rectangle : rectangles) region += rectangle;
        return region;
    }
    QRect around;
    for (const QRect& rectangle : rectangles) around |= rectangle;
    return around;
}

} // namespace

QRegion LabelScene::takeOver(const WindowParts& parts) {
    changes_.clear();
    painted_.resize(parts.cardGroups.size() + 1);
    std::vector<std::size_t> counts(painted_.size());
    forEachLabel(parts, [&](LabelPlace place, const Label& label) {
        std::vector<Painted>& group = painted_[place.group];
        const std::size_t index = counts[place.group]++;
        if (index == group.size()) group.emplace_back();
        takeOver(group[index], label);
    });
    for (std::size_t group = 0; group < painted_.size(); ++group)
        removeBehind(painted_[group], counts[group]);
    if (!changes_.empty()) sort();
    return unionOf(changes_);
}

void LabelScene::takeOver(Painted& painted, const Label& label) {
    if (looksAlike(painted.label, label)) return;
    if (painted.label.Visible) changes_.push_back(painted.place);
    painted.label = label;
    if (!label.Visible) return;
    painted.place = paintedRectangle(label);
    changes_.push_back(painted.place);
}

void LabelScene::removeBehind(std::vector<Painted>& group, std::size_t count) {
    for (std::size_t index = count; index < group.size(); ++index)
        if (group[index].label.Visible) changes_.push_back(group[index].place);
    group.resize(count);
}

const LabelScene::Painted& LabelScene::at(LabelPlace place) const {
    return painted_[place.group][static_cast<std::size_t>(place.index)];
}

void LabelScene::sort() {
    order_.clear();
    for (std::size_t group = 0; group < painted_.size(); ++group)
        for (std::size_t index = 0; index < painted_[group].size(); ++index)
            if (painted_[group][index].label.Visible)
                order_.push_back({group, static_cast<int>(index)});
    std::ranges::stable_sort(order_, {},
                             [this](LabelPlace place) { return at(place).label.Stack; });
}

void LabelScene::paint(QPainter& painter, const QRegion& area) const {
    for (const LabelPlace place : order_)
        if (area.intersects(at(place).place)) paintLabel(painter, at(place).label);
}

std::vector<Label> LabelScene::visibleLabels() const {
    std::vector<Label> labels;
    labels.reserve(order_.size());
    for (const LabelPlace place : order_) labels.push_back(at(place).label);
    return labels;
}

} // namespace toolkit
