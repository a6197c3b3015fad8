#include <simulator/RequestReader.h>

namespace {

bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

} // namespace

RequestReader::State RequestReader::Feed(const QByteArray& bytes)
{
    for (const char c : bytes) {
        if (m_eState != Incomplete) {
            break;
        }
        if (m_bytes.size() == kLimit) {
            m_eState = TooLarge;
            break;
        }
        m_bytes += c;
        if (m_bInString) {
            if (m_bEscaped) {
                m_bEscaped = false;
            } else if (c == '\\') {
                m_bEscaped = true;
            } else if (c == '"') {
                m_bInString = false;
            }
        } else if (c == '{') {
            ++m_iDepth;
        } else if (m_iDepth == 0 && !IsBlank(c)) {
            m_eState = NoObject;
        } else if (c == '"') {
            m_bInString = true;
        } else if (c == '}' && --m_iDepth == 0) {
            m_eState = Complete;
        }
    }
    return m_eState;
}
