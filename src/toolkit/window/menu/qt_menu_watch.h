// Which row of the open menus is highlighted. Internal to the toolkit's sources.
#pragma once

#include <functional>
#include <vector>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtGui/QAction>

class QMenu;

namespace toolkit {

/// A row and its menus. Places on the whole screen.
struct HighlightedRow {
    const QAction* row = nullptr; ///< none where no row is highlighted
    QRect place{};
    QRect menus{}; ///< around all open menus
};

/// Where several menus are open, the deepest row that is highlighted counts. A greyed row counts
/// while the pointer rests on it, though the platform doesn't highlight it.
class MenuWatch : public QObject {
  public:
    using Tell = std::function<void(const HighlightedRow&)>;
    /// `tell` hears of a menu that closes at once, of all else when the event is over.
    explicit MenuWatch(Tell tell) : tell_(std::move(tell)) {}

    /// The menu must not outlive this.
    void watch(QMenu& menu);
    /// Nothing is told any more.
    void stop() { tell_ = {}; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void tellSoon();
    void tellNow();
    [[nodiscard]] HighlightedRow highlighted() const;

    Tell tell_;
    std::vector<QMenu*> open_;  ///< the deepest last
    QPointer<QAction> pointed_; ///< the row under the pointer, while the player moves that
    bool willTell_ = false;
};

} // namespace toolkit
