#include "toolkit/window/modal_form.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

#include "toolkit/base/qt_text.h"
#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/input/qt_key_input.h"
#include "toolkit/window/input/qt_mouse_input.h"
#include "toolkit/window/qt_box_parent.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {
namespace {

constexpr int shortestListWidth = 260; ///< pixels

/// A list whose keys go to the form's handlers first.
class ComboWidget : public QComboBox {
  public:
    ComboWidget(ComboBox& box, QWidget* parent) : QComboBox(parent), box_(box) {
        setMinimumWidth(shortestListWidth);
    }

    void push() {
        const QSignalBlocker blocker(this);
        QStringList rows;
        for (const std::string& row : box_.List) rows.append(qString(row));
        if (rows != shown_) {
            clear();
            addItems(shown_ = rows);
        }
        setCurrentIndex(box_.ListIndex);
        setEnabled(box_.Enabled);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        // What closes a form or walks through it.
        for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
            if (event->key() == key) return event->ignore();
        KeyArguments arguments{keyCodeOf(*event), shiftOf(event->modifiers())};
        if (box_.KeyDown) box_.KeyDown(arguments);
        int character = characterOf(*event);
        if (box_.KeyPress) box_.KeyPress(character);
        if (arguments.KeyCode != 0 || character != 0) QComboBox::keyPressEvent(event);
    }

  private:
    ComboBox& box_;
    QStringList shown_;
};

class FormDialog : public QDialog {
  public:
    explicit FormDialog(ModalForm& form) : QDialog(boxParent()), form_(form) {
        setWindowTitle(qString(form.Caption));
        auto* layout = new QFormLayout(this); // owned by the dialog
        for (ComboBox* box : form.combos) addCombo(*layout, *box);
        for (NumberBox* box : form.numbers) addNumber(*layout, *box);
        addOptions(*layout);
        addButtons(*layout);
        push();
    }

    void reject() override {
        for (const CommandButton* button : form_.buttons)
            if (button->Cancel && button->Click) button->Click();
        push();
    }

  private:
    void addCombo(QFormLayout& layout, ComboBox& box) {
        auto* widget = new ComboWidget(box, this); // owned by the dialog
        layout.addRow(qString(box.Label), widget);
        combos_.push_back(widget);
        connect(widget, &QComboBox::currentIndexChanged, this, [this, &box](int index) {
            box.ListIndex = index;
            if (box.Click) box.Click();
            push();
        });
    }

    void addNumber(QFormLayout& layout, NumberBox& box) {
        auto* widget = new QSpinBox(this); // owned by the dialog
        layout.addRow(qString(box.Label), widget);
        numbers_.push_back(widget);
        connect(widget, &QSpinBox::valueChanged, this, [&box](int value) { box.Value = value; });
    }

    void addOptions(QFormLayout& layout) {
        if (form_.options.empty()) return;
        auto* row = new QHBoxLayout; // owned by the layout
        for (OptionButton* option : form_.options) {
            auto* widget = new QRadioButton(qString(option->Caption), this); // owned by the dialog
            row->addWidget(widget);
            options_.push_back(widget);
            connect(widget, &QRadioButton::toggled, this,
                    [option](bool isOn) { option->Value = isOn; });
        }
        row->addStretch();
        layout.addRow(QString(), row);
    }

    void addButtons(QFormLayout& layout) {
        auto* row = new QDialogButtonBox(this); // owned by the dialog
        for (CommandButton* button : form_.buttons) {
            const auto role =
                button->Cancel ? QDialogButtonBox::RejectRole : QDialogButtonBox::AcceptRole;
            QPushButton* widget = row->addButton(qString(button->Caption), role);
            widget->setDefault(button->Default);
            connect(widget, &QPushButton::clicked, this, [this, button] {
                if (button->Click) button->Click();
                push();
            });
        }
        layout.addRow(row);
    }

    void push() {
        for (ComboWidget* combo : combos_) combo->push();
        for (std::size_t i = 0; i < numbers_.size(); ++i) {
            const NumberBox& box = *form_.numbers[i];
            const QSignalBlocker blocker(numbers_[i]);
            numbers_[i]->setRange(box.Min, box.Max);
            numbers_[i]->setValue(box.Value);
            numbers_[i]->setEnabled(box.Enabled);
        }
        for (std::size_t i = 0; i < options_.size(); ++i) {
            const QSignalBlocker blocker(options_[i]);
            options_[i]->setChecked(form_.options[i]->Value);
            options_[i]->setEnabled(form_.options[i]->Enabled);
        }
        if (form_.Unloaded) done(QDialog::Accepted);
    }

    ModalForm& form_;
    std::vector<ComboWidget*> combos_;
    std::vector<QSpinBox*> numbers_;
    std::vector<QRadioButton*> options_;
};

} // namespace

void showModal(ModalForm& form) {
    updateWindow();
    if (form.Unloaded) return;
    FormDialog dialog(form);
    dialog.exec();
    rethrowKept();
}

} // namespace toolkit
