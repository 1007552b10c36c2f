// What a widget paints and a screen reader knows as a thing of its own. Internal to the toolkit's
// sources.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QtGui/QAccessible>
#include <QtWidgets/QWidget>

namespace toolkit {

/// Whether somebody listens. An event that nobody hears would still make parts.
[[nodiscard]] bool isHeard();
/// Says what has happened.
void tell(QAccessibleEvent& event);
/// For tests: hears in the place of the platform; an empty one gives it back.
void hearWith(std::function<void(QAccessibleEvent&)> hear);

/// A part without a widget and without parts below it.
class PaintedPart : public QAccessibleInterface {
  public:
    explicit PaintedPart(QWidget& widget) : widget_(widget) {}

    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override { return widget_.window()->windowHandle(); }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(&widget_);
    }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
        return -1;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override {
        return nullptr;
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

  private:
    QWidget& widget_;
};

/// One that a screen reader can press.
class PressablePart : public PaintedPart, public QAccessibleActionInterface {
  public:
    using PaintedPart::PaintedPart;

    void* interface_cast(QAccessible::InterfaceType kind) override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override {
        return {};
    }

  protected:
    [[nodiscard]] virtual bool canBePressed() const = 0;
    virtual void press() = 0;
};

/// The parts of a widget, each made when it is asked for first.
class PaintedParts {
  public:
    PaintedParts() = default;
    ~PaintedParts() { resize(0); }
    PaintedParts(const PaintedParts&) = delete;
    PaintedParts& operator=(const PaintedParts&) = delete;

    void resize(int count);
    [[nodiscard]] int size() const { return static_cast<int>(parts_.size()); }
    /// `make` makes the part; nullptr beyond the last.
    QAccessibleInterface* at(int index, const std::function<std::unique_ptr<PaintedPart>()>& make);
    /// -1 for none of these.
    [[nodiscard]] int indexOf(const QAccessibleInterface* part) const;

  private:
    std::vector<QAccessible::Id> parts_; ///< 0 for one that nobody has asked for
};

} // namespace toolkit
