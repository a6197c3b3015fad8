#pragma once

#include <QString>

#include <optional>

/**
 * What is wrong with a simulated machine: one kind, and for an error answer its code and its text.
 *
 * @code
 * QString reason;
 * const std::optional<Fault> fault = Fault::Parse("error:7:spindle is hot", &reason);
 * @endcode
 */
struct Fault
{
    enum Kind
    {
        None,        ///< a healthy machine
        Silent,      ///< accepts the connection and never answers
        Close,       ///< closes the connection at once
        Split,       ///< answers in two pieces with a pause between them
        Slow,        ///< answers byte by byte
        Garbage,     ///< answers bytes that are neither JSON nor UTF-8
        Array,       ///< answers a JSON array
        EmptySerial, ///< answers success with an empty serial number
        Error,       ///< answers failure with iCode and strText
        Huge,        ///< answers with 100 MiB
        Late,        ///< answers when the host has given up
        FtpDown      ///< has no file service
    };

    Kind eKind = None;
    int iCode = 0;
    /** Empty stands for `"msg":""`; a null text leaves the member out. */
    QString strText;

    /**
     * Reads a fault as the command line writes it: a kind's name, or `error:CODE:TEXT` with a CODE other than 0. TEXT
     * may hold colons, and `error:CODE` alone answers without a text.
     *
     * @param reason receives why @p text is no fault
     */
    static std::optional<Fault> Parse(const QString& text, QString* reason);

    /** The fault as Parse() reads it; empty for None. */
    QString Name() const;

    /** A line for each fault: its name, what the machine does, what a host shows for it. */
    static QString Help();
};
