#include "gui/QtPlatform.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QLocale>
#include <QMessageBox>
#include <QSoundEffect>
#include <QSysInfo>
#include <QUrl>

QtPlatform::QtPlatform(fw::FolderSet folders) : folders_(std::move(folders)) {}

QtPlatform::~QtPlatform() { qDeleteAll(sounds_); }

void QtPlatform::SetClipboardText(const std::string& text) {
    QApplication::clipboard()->setText(QString::fromStdString(text));
}

std::string QtPlatform::ClipboardText() { return QApplication::clipboard()->text().toStdString(); }

QSoundEffect* QtPlatform::Sound(const QString& file) {
    auto found = sounds_.find(file);
    if (found != sounds_.end()) return found.value();
    auto* effect = new QSoundEffect;
    effect->setSource(QUrl::fromLocalFile(QDir(QString::fromStdString(folders_.resources.string())).filePath(file)));
    sounds_.insert(file, effect);
    return effect;
}

void QtPlatform::Beep() {
    // Most X11 desktops mute the bell, so the beep is a short tone of our own.
    Sound(QStringLiteral("beep.wav"))->play();
}

void QtPlatform::PlaySound(const std::string& name) { Sound(QString::fromStdString(name) + ".wav")->play(); }

void QtPlatform::MsgBox(const std::string& message) {
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Velmora"), QString::fromStdString(message), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.exec();
}

void QtPlatform::ShowURL(const std::string& url) { QDesktopServices::openUrl(QUrl(QString::fromStdString(url))); }

bool QtPlatform::AsyncShiftKey() {
    return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ShiftModifier);
}

fw::FolderItemRef QtPlatform::Folder(fw::SpecialFolder which) { return fw::SpecialFolderItem(folders_, which); }

std::time_t QtPlatform::Now() { return std::time(nullptr); }

std::string QtPlatform::ShortDate(std::time_t moment) {
    return QLocale().toString(QDateTime::fromSecsSinceEpoch(moment).date(), QLocale::ShortFormat).toStdString();
}

std::string QtPlatform::ShortTime(std::time_t moment) {
    return QLocale().toString(QDateTime::fromSecsSinceEpoch(moment).time(), QLocale::ShortFormat).toStdString();
}

std::string QtPlatform::SystemVersion() { return QSysInfo::prettyProductName().toStdString(); }

QString QtPlatform::PicturePath(const std::string& name) const {
    // The targets are GIF pictures, the pictures of the whole window JPEG photographs.
    const QDir folder(QString::fromStdString(folders_.resources.string()));
    const QString gif = folder.filePath(QString::fromStdString(name) + ".gif");
    const QString jpg = folder.filePath(QString::fromStdString(name) + ".jpg");
    return QFileInfo::exists(gif) || !QFileInfo::exists(jpg) ? gif : jpg;
}

QPixmap QtPlatform::Picture(const std::string& name, qreal ratio) const {
    const QFileInfo file(PicturePath(name));
    QImage image(file.filePath());
    const QSize pixels = (QSizeF(image.size()) * ratio).toSize();
    if (ratio > 1) {
        const QImage sharper(file.dir().filePath(file.completeBaseName() + "@2x." + file.suffix()));
        if (!sharper.isNull()) image = sharper;
    }
    // Shrinking the larger picture keeps it sharp; only a picture without one is enlarged.
    if (image.size() != pixels) image = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(ratio);
    return QPixmap::fromImage(image);
}
