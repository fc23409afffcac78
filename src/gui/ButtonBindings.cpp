// Buttons, two-state controls, labels and pictures.

#include <QAbstractButton>
#include <QCheckBox>
#include <QEvent>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QKeyEvent>
#include <QMenu>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "framework/Controls.h"
#include "gui/Bindings.h"
#include "gui/QtPlatform.h"

namespace {

class PushButtonBinding : public ControlBinding {
public:
    PushButtonBinding(fw::PushButton& model, QWidget* parent, QPoint origin, QtPlatform& platform)
        : ControlBinding(model, new QPushButton(parent), origin, platform), model_(model) {
        button()->setFocusPolicy(Qt::TabFocus);
        button()->setDefault(model.Default);
        connect(button(), &QPushButton::clicked, this, [this] { Deliver([this] { model_.Push(); }); });
    }

protected:
    void Update(fw::Property property) override {
        if (property == fw::Property::Caption) button()->setText(QString::fromStdString(model_.Caption()));
    }

private:
    QPushButton* button() const { return static_cast<QPushButton*>(Widget()); }
    fw::PushButton& model_;
};

class BevelButtonBinding : public ControlBinding {
public:
    BevelButtonBinding(fw::BevelButton& model, QWidget* parent, QPoint origin, QtPlatform& platform)
        : ControlBinding(model, new QToolButton(parent), origin, platform), model_(model) {
        button()->setPopupMode(QToolButton::InstantPopup);
        button()->setMenu(new QMenu(button()));
        button()->setToolButtonStyle(Qt::ToolButtonTextOnly);
        // The small window is usable from the keyboard: the drop-down takes focus, and Space or
        // Enter open its menu.
        button()->setFocusPolicy(Qt::StrongFocus);
        button()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == button() && event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
                button()->showMenu();
                return true;
            }
        }
        if (watched == button() && event->type() == QEvent::Resize) ShowCaption();
        return ControlBinding::eventFilter(watched, event);
    }

    void Update(fw::Property property) override {
        if (property == fw::Property::Caption) ShowCaption();
        if (property != fw::Property::Rows) return;
        QMenu* menu = button()->menu();
        menu->clear();
        for (int row = 0; row < model_.ListCount(); ++row) {
            QAction* action = menu->addAction(QString::fromStdString(model_.List(row)));
            connect(action, &QAction::triggered, this, [this, row] { Deliver([this, row] { model_.Choose(row); }); });
        }
    }

private:
    // A caption too long for the button shows its beginning, not a middle cut on both sides.
    void ShowCaption() {
        const QString caption = QString::fromStdString(model_.Caption());
        const int room = button()->width() - 10;
        button()->setText(button()->fontMetrics().elidedText(caption, Qt::ElideRight, room));
        button()->setToolTip(caption);
    }
    QToolButton* button() const { return static_cast<QToolButton*>(Widget()); }
    fw::BevelButton& model_;
};

class ValueBinding : public ControlBinding {
public:
    ValueBinding(fw::ValueControl& model, QAbstractButton* button, QPoint origin, QtPlatform& platform)
        : ControlBinding(model, button, origin, platform), model_(model) {
        if (auto* radio = qobject_cast<QRadioButton*>(button)) radio->setAutoExclusive(false);
        connect(button, &QAbstractButton::clicked, this, [this] { Deliver([this] { model_.Click(); }); });
    }

protected:
    void Update(fw::Property property) override {
        auto* button = static_cast<QAbstractButton*>(Widget());
        if (property == fw::Property::Caption) button->setText(QString::fromStdString(model_.Caption()));
        if (property == fw::Property::Value) button->setChecked(model_.Value());
    }

private:
    fw::ValueControl& model_;
};

class LabelBinding : public ControlBinding {
public:
    LabelBinding(fw::Label& model, QWidget* widget, QPoint origin, QtPlatform& platform)
        : ControlBinding(model, widget, origin, platform), model_(model) {
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            label->setWordWrap(true);
            label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
            if (model.TextColor >= 0) {
                label->setStyleSheet(QStringLiteral("color: #%1;%2")
                                         .arg(model.TextColor, 6, 16, QLatin1Char('0'))
                                         .arg(model.Underline ? " text-decoration: underline;" : ""));
                label->setCursor(Qt::PointingHandCursor);
            }
        }
    }

protected:
    void Update(fw::Property property) override {
        if (property != fw::Property::Text) return;
        const QString text = QString::fromStdString(model_.Text());
        if (auto* label = qobject_cast<QLabel*>(Widget())) label->setText(text);
        if (auto* box = qobject_cast<QGroupBox*>(Widget())) box->setTitle(text);
    }

private:
    fw::Label& model_;
};

class ImageWellBinding : public ControlBinding {
public:
    ImageWellBinding(fw::ImageWell& model, QWidget* parent, QPoint origin, QtPlatform& platform)
        : ControlBinding(model, new QLabel(parent), origin, platform), model_(model) {
        static_cast<QLabel*>(Widget())->setAlignment(Qt::AlignCenter);
        Widget()->setCursor(Qt::PointingHandCursor);
    }

protected:
    void Update(fw::Property property) override {
        if (property != fw::Property::Image) return;
        static_cast<QLabel*>(Widget())->setPixmap(platform_.Picture(model_.Image(), Widget()->devicePixelRatioF()));
    }

    // A window moved to a screen of another scale is drawn there anew: so is the picture.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == Widget() && event->type() == QEvent::ScreenChangeInternal) Update(fw::Property::Image);
        return ControlBinding::eventFilter(watched, event);
    }

private:
    fw::ImageWell& model_;
};

}  // namespace

std::unique_ptr<ControlBinding> MakeButtonBinding(fw::Control& control, QWidget* parent, QPoint origin,
                                                  QtPlatform& platform) {
    switch (control.GetKind()) {
    case fw::Kind::PushButton:
        return std::make_unique<PushButtonBinding>(static_cast<fw::PushButton&>(control), parent, origin, platform);
    case fw::Kind::BevelButton:
        return std::make_unique<BevelButtonBinding>(static_cast<fw::BevelButton&>(control), parent, origin, platform);
    case fw::Kind::CheckBox:
        return std::make_unique<ValueBinding>(static_cast<fw::ValueControl&>(control), new QCheckBox(parent), origin,
                                              platform);
    case fw::Kind::RadioButton:
        return std::make_unique<ValueBinding>(static_cast<fw::ValueControl&>(control), new QRadioButton(parent), origin,
                                              platform);
    case fw::Kind::ImageWell:
        return std::make_unique<ImageWellBinding>(static_cast<fw::ImageWell&>(control), parent, origin, platform);
    case fw::Kind::GroupBox:
        return std::make_unique<LabelBinding>(static_cast<fw::Label&>(control), new QGroupBox(parent), origin, platform);
    case fw::Kind::Separator: {
        auto* line = new QFrame(parent);
        const fw::Rect& bounds = control.Bounds();
        line->setFrameShape(bounds.Width > bounds.Height ? QFrame::HLine : QFrame::VLine);
        line->setFrameShadow(QFrame::Sunken);
        return std::make_unique<LabelBinding>(static_cast<fw::Label&>(control), line, origin, platform);
    }
    case fw::Kind::StaticText:
        return std::make_unique<LabelBinding>(static_cast<fw::Label&>(control), new QLabel(parent), origin, platform);
    default: return nullptr;
    }
}
