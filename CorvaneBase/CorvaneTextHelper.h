#pragma once

#include <CorvaneBase/CorvaneBaseGlobal.h>
#include <CorvaneBase/CorvaneConstants.h>

#include <QString>
#include <QVariant>

#include <memory>

/**
 * The product's language, its reading of numbers and its local settings. A singleton of the GUI thread:
 * instance() makes it at its first call, and it lives to the end of the program.
 *
 * @code
 * if (!CorvaneTextHelper::instance()->AppInChineseEnvironment())
 *     button->setFixedWidth(128);
 * @endcode
 */
class CORVANEBASE_EXPORT CorvaneTextHelper
{
public:
    /** The one object, made when it is first asked for. */
    static CorvaneTextHelper* instance();

    /** True when the product runs in Chinese. Controls that need more room for longer texts branch on it. */
    bool AppInChineseEnvironment();

    /** Overrules the language that QLocale::system() tells. Controls read it when they are built. */
    void SetAppInChineseEnvironment(bool chinese);

    /**
     * Parses a number as a user types it, blanks around it allowed: first in the C locale without group separators,
     * then in the application's locale (QLocale()), then in the system's. So "1.5" is one and a half everywhere, and
     * "1,5" is where a comma is the decimal sign. What is no finite number gives 0.0.
     */
    double SafeStringToDouble(const QString& text);

    /** Reads a setting; gives @p defaultValue when there is none or its file cannot be read. */
    QVariant GetLocalSettingCache(SettingType type, const QString& key, QVariant defaultValue);

    /**
     * Writes a setting and the file behind it, whole and at once, so that a crash leaves the old file or the new one. A
     * file that cannot be written leaves the value in force for this run. A file that was there but could not be
     * understood is kept as "<path>.bad".
     *
     * @param type  the group of the setting
     * @param key   its name in the group
     * @param value a bool, a number, a text or texts, a list, map or hash of values, bytes, a date, time, URL, locale
     * or UUID, a point, size, rectangle, line or colour; it comes back with its type. An invalid one removes the
     * setting. One of another type holds for this run and is not written, which the log tells
     * @param flag  reserved; the controls pass false
     */
    void SetLocalSettingCache(SettingType type, const QString& key, const QVariant& value, bool flag);

    /**
     * Reads and writes the settings in another file from now on. An empty path restores the default,
     * "CorvaneBase.json" in the user's configuration folder.
     */
    void SetSettingsFile(const QString& path);

private:
    CorvaneTextHelper();
    ~CorvaneTextHelper();
    Q_DISABLE_COPY_MOVE(CorvaneTextHelper)

    struct Private;
    std::unique_ptr<Private> d;
};
