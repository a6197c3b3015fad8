#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <utility>

/** Gives an input out piece by piece. What is read beyond its end is zero or empty. */
class FuzzInput
{
public:
    FuzzInput(const uint8_t* data, size_t size)
        : m_bytes(QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size)))
    {}

    bool AtEnd() const { return m_next >= m_bytes.size(); }

    /** One byte, 0 to 255. */
    int Byte() { return AtEnd() ? 0 : static_cast<uint8_t>(m_bytes.at(m_next++)); }

    /** What stands before the next @p separator, which is skipped. */
    QByteArray Until(char separator)
    {
        const qsizetype found = m_bytes.indexOf(separator, m_next);
        const qsizetype end = found < 0 ? m_bytes.size() : found;
        const QByteArray piece = m_bytes.mid(m_next, end - m_next);
        m_next = qMin(end + 1, m_bytes.size());
        return piece;
    }

    QByteArray Rest() { return m_bytes.mid(std::exchange(m_next, m_bytes.size())); }

private:
    QByteArray m_bytes;
    qsizetype m_next = 0;
};

/** Ends the run where @p condition does not hold; the fuzzer then keeps the input. */
#define FUZZ_CHECK(condition)                                                                                          \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            FuzzFail(#condition, __FILE__, __LINE__);                                                                  \
        }                                                                                                              \
    } while (false)

[[noreturn]] void FuzzFail(const char* condition, const char* file, int line);

/** What a target does with one input. It leaves nothing behind that changes what the next one does. */
void FuzzOne(FuzzInput& input);

/** A file for the target's own use, in memory where the system has such a place. */
QString FuzzFile(const QString& name);

/** Lets everything happen that has been put off until the event loop runs, deletions included. */
void FuzzSettle();
