#pragma once

#include <QByteArray>

/**
 * Gathers a request that nothing frames: it ends with the brace that closes its first one, wherever the pieces were
 * cut.
 */
class RequestReader
{
public:
    /** Bytes that a request may have. A real one has 37. */
    static constexpr qsizetype kLimit = 4096;

    enum State
    {
        Incomplete, ///< more has to come
        Complete,   ///< Bytes() is a whole object, as far as its braces tell
        NoObject,   ///< it doesn't begin with a brace
        TooLarge    ///< kLimit bytes without an end
    };

    /** Takes the bytes that have arrived. What follows the end of the request is not kept. */
    State Feed(const QByteArray& bytes);

    State CurrentState() const { return m_eState; }
    /** What was kept so far, at most kLimit bytes. */
    const QByteArray& Bytes() const { return m_bytes; }

private:
    State m_eState = Incomplete;
    QByteArray m_bytes;
    int m_iDepth = 0;
    bool m_bInString = false;
    bool m_bEscaped = false;
};
