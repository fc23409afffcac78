#pragma once
// The desktop behind the logic: Qt's clipboard, sounds, message boxes and browser.

#include <QHash>
#include <QPixmap>
#include <QString>

#include "framework/Folders.h"
#include "framework/Platform.h"

class QSoundEffect;

class QtPlatform : public fw::Platform {
public:
    explicit QtPlatform(fw::FolderSet folders);
    ~QtPlatform() override;

    void SetClipboardText(const std::string& text) override;
    std::string ClipboardText() override;
    void Beep() override;
    void PlaySound(const std::string& name) override;
    void MsgBox(const std::string& message) override;
    void ShowURL(const std::string& url) override;
    bool AsyncShiftKey() override;
    fw::FolderItemRef Folder(fw::SpecialFolder which) override;
    std::time_t Now() override;
    std::string ShortDate(std::time_t moment) override;
    std::string ShortTime(std::time_t moment) override;
    std::string SystemVersion() override;

    const fw::FolderSet& Folders() const { return folders_; }
    // Picture resources by their name in the code: "target" is target.gif, "fullwindow1" fullwindow1.jpg.
    QString PicturePath(const std::string& name) const;
    // The picture `name` for a screen of `ratio` device pixels to a pixel, one device pixel to
    // each of its own: made from the "@2x" file where the screen is scaled and there is one.
    QPixmap Picture(const std::string& name, qreal ratio) const;

private:
    QSoundEffect* Sound(const QString& file);
    fw::FolderSet folders_;
    QHash<QString, QSoundEffect*> sounds_;
};
