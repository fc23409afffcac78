// One-line and multi-line text fields.

#include <algorithm>
#include <string_view>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>

#include "framework/Controls.h"
#include "gui/Bindings.h"

namespace {

QString StyleFor(const fw::TextControl& model) {
    return model.BackColor() < 0 ? QString() : QStringLiteral("background-color: #%1; color: black;")
                                                   .arg(model.BackColor(), 6, 16, QLatin1Char('0'));
}

class TextBinding : public ControlBinding {
public:
    TextBinding(fw::TextControl& model, QWidget* widget, QPoint origin, QtPlatform& platform)
        : ControlBinding(model, widget, origin, platform), model_(model) {}

protected:
    // KeyDown hears every typed key first and may keep it from the field.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == Widget() && event->type() == QEvent::KeyPress && model_.KeyDown) {
            const QString key = static_cast<QKeyEvent*>(event)->text();
            if (!key.isEmpty()) {
                bool swallowed = false;
                Deliver([&] { swallowed = model_.KeyDown(key.toStdString()); });
                if (swallowed) return true;
            }
        }
        return ControlBinding::eventFilter(watched, event);
    }

    void UserEdited(const QString& text, int selectionStart, int selectionLength) {
        if (Updating()) return;
        Deliver([&] {
            model_.SetText(text.toStdString());
            model_.SetSelection(selectionStart, selectionLength);
        });
    }

    void UserMovedCaret(int selectionStart, int selectionLength) {
        if (!Updating()) model_.SetSelection(selectionStart, selectionLength);
    }

    fw::TextControl& model_;
};

class LineEditBinding : public TextBinding {
public:
    LineEditBinding(fw::TextControl& model, QWidget* parent, QPoint origin, QtPlatform& platform)
        : TextBinding(model, new QLineEdit(parent), origin, platform) {
        connect(edit(), &QLineEdit::textEdited, this, [this](const QString& text) {
            UserEdited(text, edit()->cursorPosition(), 0);
        });
        connect(edit(), &QLineEdit::selectionChanged, this, [this] { Caret(); });
        connect(edit(), &QLineEdit::cursorPositionChanged, this, [this] { Caret(); });
    }

protected:
    void Update(fw::Property property) override {
        switch (property) {
        case fw::Property::Text:
        case fw::Property::TextAppended: {
            const QString text = QString::fromStdString(model_.Text());
            if (edit()->text() != text) edit()->setText(text);
            break;
        }
        case fw::Property::Style:
            edit()->setStyleSheet(StyleFor(model_));
            edit()->setReadOnly(model_.ReadOnly);
            edit()->setAlignment(model_.Alignment == 3 ? Qt::AlignRight : Qt::AlignLeft);
            break;
        default: break;
        }
    }

private:
    void Caret() {
        const int start = edit()->hasSelectedText() ? edit()->selectionStart() : edit()->cursorPosition();
        UserMovedCaret(start, edit()->hasSelectedText() ? edit()->selectedText().size() : 0);
    }
    QLineEdit* edit() const { return static_cast<QLineEdit*>(Widget()); }
};

// A line of the log as the view shows it. A dropped text of megabytes would take the view
// seconds and a gigabyte to lay out: such a line shows its beginning and how long it is, while
// the log itself keeps it whole, and Save Log writes it whole.
constexpr size_t kLongestShownLine = 20000;

QString Shown(std::string_view appended) {
    QString shown;
    for (size_t begin = 0; begin < appended.size();) {
        const size_t end = std::min(appended.find('\n', begin), appended.size());
        std::string_view line = appended.substr(begin, end - begin);
        const bool cut = line.size() > kLongestShownLine;
        if (cut) {
            line = line.substr(0, kLongestShownLine);
            // Not in the midst of a character: back to the start of the one cut.
            while (!line.empty() && (static_cast<unsigned char>(appended[begin + line.size()]) & 0xC0) == 0x80)
                line.remove_suffix(1);
        }
        shown += QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()));
        if (cut) shown += QStringLiteral(" [... %L1 bytes in all, kept whole in the log]").arg(end - begin);
        if (end < appended.size()) shown += QLatin1Char('\n');
        begin = end + 1;
    }
    return shown;
}

class TextAreaBinding : public TextBinding {
public:
    TextAreaBinding(fw::TextControl& model, QWidget* parent, QPoint origin, QtPlatform& platform)
        : TextBinding(model, new QPlainTextEdit(parent), origin, platform) {
        connect(edit(), &QPlainTextEdit::textChanged, this, [this] {
            // Reading the whole document back costs as much as the log is long: only for a user's edit.
            if (Updating()) return;
            const QTextCursor cursor = edit()->textCursor();
            UserEdited(edit()->toPlainText(), cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
        });
        connect(edit(), &QPlainTextEdit::cursorPositionChanged, this, [this] {
            const QTextCursor cursor = edit()->textCursor();
            UserMovedCaret(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
        });
    }

protected:
    void Update(fw::Property property) override {
        switch (property) {
        case fw::Property::Text: ScheduleText(); break;
        case fw::Property::TextAppended: {
            // The whole text that is on its way holds this line too.
            if (textPending_ || textStale_) break;
            // The log grows by a line per event: append at the end, never rebuild the document,
            // and keep the appends out of the undo history, which would otherwise hold them all.
            QTextDocument* document = edit()->document();
            const bool undo = document->isUndoRedoEnabled();
            document->setUndoRedoEnabled(false);
            QTextCursor end(document);
            end.movePosition(QTextCursor::End);
            end.insertText(Shown(model_.LastAppended()));
            document->setUndoRedoEnabled(undo);
            edit()->verticalScrollBar()->setValue(edit()->verticalScrollBar()->maximum());
            break;
        }
        case fw::Property::Style:
            edit()->setStyleSheet(StyleFor(model_));
            edit()->setReadOnly(model_.ReadOnly);
            edit()->setUndoRedoEnabled(!model_.ReadOnly);
            break;
        default: break;
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == Widget() && event->type() == QEvent::Show && textStale_) Quietly([this] { ShowText(); });
        return TextBinding::eventFilter(watched, event);
    }

private:
    // A handler may set a text many times, megabytes of a drop among them, before it ends: the
    // view takes the text the handler left, once, and a hidden view only when it is shown.
    void ScheduleText() {
        if (textPending_) return;
        textPending_ = true;
        QTimer::singleShot(0, this, [this] {
            textPending_ = false;
            Quietly([this] { ShowText(); });
        });
    }

    void ShowText() {
        textStale_ = !edit()->isVisible();
        if (textStale_) return;
        // Nobody edits a read-only area, so its long lines may show only their beginning.
        const QString text = model_.ReadOnly ? Shown(model_.Text()) : QString::fromStdString(model_.Text());
        if (edit()->toPlainText() == text) return;
        edit()->setPlainText(text);
        // A soft key appends to the field: typing goes on behind what it put there.
        edit()->moveCursor(QTextCursor::End);
    }

    QPlainTextEdit* edit() const { return static_cast<QPlainTextEdit*>(Widget()); }
    bool textPending_ = false;
    bool textStale_ = false;
};

}  // namespace

std::unique_ptr<ControlBinding> MakeTextBinding(fw::Control& control, QWidget* parent, QPoint origin,
                                                QtPlatform& platform) {
    auto& text = static_cast<fw::TextControl&>(control);
    if (control.GetKind() == fw::Kind::TextField) return std::make_unique<LineEditBinding>(text, parent, origin, platform);
    if (control.GetKind() == fw::Kind::TextArea) return std::make_unique<TextAreaBinding>(text, parent, origin, platform);
    return nullptr;
}
