#pragma once

#include <CorvaneBase/CorvaneBaseGlobal.h>
#include <CorvaneBase/CorvaneConstants.h>

#include <QList>
#include <QString>

#include <memory>

/** One tool of a machine's magazine. */
struct ToolBit
{
    int iNumber;       ///< the number that G-code calls it by
    int iType;         ///< its type code, see CorvaneToolBitHelper::GetToolNameByType
    QString strDetail; ///< its measures in words, such as "D3.175 R0.5"
    int iLocation;     ///< its pocket in the magazine, counted from 1
};

/**
 * What the product knows of each model's tools. A singleton of the GUI thread: instance() makes it at its first call,
 * and it lives to the end of the program. It starts with the tools that are built in; a host replaces them from its own
 * data.
 *
 * @code
 * QString error;
 * if (!CorvaneToolBitHelper::instance()->LoadTools("tools.json", &error))
 *     qWarning() << error;
 * @endcode
 */
class CORVANEBASE_EXPORT CorvaneToolBitHelper
{
public:
    /** The one object, made when it is first asked for. */
    static CorvaneToolBitHelper* instance();

    /** The type code of a tool; -1 for a number that the model does not have. */
    int GetIntegerToolTypeByNumber(int toolNumber, ModelType model) const;
    /**
     * The display name of a type, in the product's language; empty for an unknown one. Built in are 0 reamer, 1 end
     * mill, 2 relieved mill, 3 ball end mill, 4 relieved ball, 5 bull nose, 6 engraver, 7 tapered ball.
     */
    QString GetToolNameByType(int toolType) const;
    /** The detail text of a tool; empty for a number that the model does not have. */
    QString GetToolDetailByNumber(int toolNumber, ModelType model) const;
    /** The pocket of a tool in the magazine; -1 for a number that the model does not have. */
    int GetToolLocationByToolNo(int toolNumber, ModelType model);

    /** Replaces the tools of @p model. Of two tools with one number the last holds. */
    void SetTools(ModelType model, const QList<ToolBit>& tools);

    /**
     * Replaces the tools of each model that a JSON file names, and the type names that it gives; docs/tool-data.md
     * tells its form.
     *
     * @param jsonFile path of the file
     * @param error    receives the reason of a failure in words for the user, and is emptied on success; may be null
     * @return false when the file cannot be read or is not in that form: then everything stays as it was
     */
    bool LoadTools(const QString& jsonFile, QString* error);

private:
    CorvaneToolBitHelper();
    ~CorvaneToolBitHelper();
    Q_DISABLE_COPY_MOVE(CorvaneToolBitHelper)

    struct Private;
    std::unique_ptr<Private> d;
};
