// A section of the card, and a field in it, for screen readers. Internal to the toolkit's sources.
#pragma once

#include <vector>

#include <QtGui/QAccessible>

#include "toolkit/model/accessible_card.h"
#include "toolkit/window/control/qt_painted_part.h"

namespace toolkit {

class CardWidget;

/// The fields of a section; they belong to it.
class AccessibleSectionPart : public QAccessibleInterface {
  public:
    AccessibleSectionPart(CardWidget& card, const AccessibleSection& section);
    ~AccessibleSectionPart() override;
    AccessibleSectionPart(const AccessibleSectionPart&) = delete;
    AccessibleSectionPart& operator=(const AccessibleSectionPart&) = delete;

    [[nodiscard]] bool isValid() const override { return true; }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] int childCount() const override { return static_cast<int>(fields_.size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Grouping; }
    [[nodiscard]] QAccessible::State state() const override { return {}; }

    [[nodiscard]] const std::vector<QAccessible::Id>& fields() const { return fields_; }

  private:
    CardWidget& card_;
    std::string name_;
    std::vector<QAccessible::Id> fields_;
};

/// A check box, or a text that can be changed.
class AccessibleFieldPart : public PaintedPart,
                            public QAccessibleActionInterface,
                            public QAccessibleTextInterface,
                            public QAccessibleEditableTextInterface {
  public:
    AccessibleFieldPart(CardWidget& card, AccessibleSectionPart& section, AccessibleField field);

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override { return &section_; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override {
        return {};
    }

    // A field has no caret and no selection of its own: the box that opens over it has.
    void selection(int /*index*/, int* start, int* end) const override { *start = *end = 0; }
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int /*start*/, int /*end*/) override {}
    void removeSelection(int /*index*/) override {}
    void setSelection(int /*index*/, int /*start*/, int /*end*/) override {}
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*place*/) override {}
    [[nodiscard]] QString text(int start, int end) const override;
    [[nodiscard]] int characterCount() const override;
    [[nodiscard]] QRect characterRect(int /*offset*/) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint& /*point*/) const override { return 0; }
    void scrollToSubstring(int /*start*/, int /*end*/) override {}
    QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int place, const QString& text) override { replaceText(place, place, text); }
    void replaceText(int start, int end, const QString& text) override;

  private:
    [[nodiscard]] bool isText() const { return field_.id.kind == FieldId::Kind::Text; }
    [[nodiscard]] QString said() const;

    CardWidget& card_;
    AccessibleSectionPart& section_;
    AccessibleField field_;
};

} // namespace toolkit
