#include "app/help_pages.h"

#include "base/files.h"

#include <QHelpContentModel>
#include <QHelpIndexModel>
#include <QThread>

HelpPages::HelpPages(const QString& file)
{
    const QString collection = m_folder.filePath(QStringLiteral("help.qhc"));
    {
        QHelpEngineCore builder(collection);
        builder.setReadOnly(false);
        if (!m_folder.isValid() || !builder.setupData() || !builder.registerDocumentation(file))
            return;
    }
    m_engine = std::make_unique<QHelpEngine>(collection);
    m_engine->setReadOnly(false);
    if (!m_engine->setupData())
        FinishReading();
}

HelpPages::~HelpPages()
{
    FinishReading();
}

void HelpPages::FinishReading()
{
    // Contents and index are read on threads of their own. The engine does not always survive going while they run.
    while (m_engine && (m_engine->contentModel()->isCreatingContents() || m_engine->indexModel()->isCreatingIndex()))
        QThread::msleep(1);
    m_engine.reset();
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
