// SPDX-License-Identifier: MIT
#include "ScreenlessApplication.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// An own, empty runtime folder as long as this lives. The toolkit searches the user's for a display, although none is
/// needed: if there is no such folder, it makes one in /tmp that stays, and if it is another user's, it complains.
class OwnRuntimeFolder
{
public:
    OwnRuntimeFolder() : m_folder(QDir::tempPath() + u"/lumora-XXXXXX"_s), m_before(qgetenv(variable))
    {
        if (m_folder.isValid())
            qputenv(variable, QFile::encodeName(m_folder.path()));
    }
    ~OwnRuntimeFolder()
    {
        if (m_before.isNull())
            qunsetenv(variable);
        else
            qputenv(variable, m_before);
    }
    Q_DISABLE_COPY_MOVE(OwnRuntimeFolder)

private:
    static constexpr auto variable = "XDG_RUNTIME_DIR";

    QTemporaryDir m_folder;
    QByteArray m_before;
};

} // namespace

std::unique_ptr<QGuiApplication> makeScreenlessApplication(int &argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const OwnRuntimeFolder runtime;
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace lumora
