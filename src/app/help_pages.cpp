#include "app/help_pages.h"

#include "base/files.h"

HelpPages::HelpPages(const QString& file)
{
    const QString collection = m_folder.filePath(QStringLiteral("help.qhc"));
    {
        QHelpEngineCore builder(collection);
        builder.setReadOnly(false);
        m_areThere = m_folder.isValid() && builder.setupData() && builder.registerDocumentation(file);
    }
    m_engine = std::make_unique<QHelpEngine>(collection);
    m_engine->setReadOnly(false);
    m_areThere = m_engine->setupData() && m_areThere;
}

QUrl HelpPages::PageOf(const QString& name) const
{
    const QList<QHelpLink> pages = m_engine->documentsForIdentifier(name);
    return pages.isEmpty() ? QUrl() : pages.constFirst().url;
}

QByteArray HelpPages::Read(const QUrl& address) const
{
    return m_engine->fileData(m_engine->findFile(address));
}

QString HelpFile()
{
    return NativePath(ProgramFolder(), QStringLiteral("tavrinhelp.qch"));
}
