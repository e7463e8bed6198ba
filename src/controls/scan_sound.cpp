#include "controls/scan_sound.h"

#include "base/guard.h"
#include "base/numbers.h"
#include "base/settings_store.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <memory>

namespace {

// A sound server that hangs must not gather players.
constexpr int MostPlayers = 3;

bool HasRuntimeSocket(const char* name)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return QFileInfo::exists(folder + QLatin1Char('/') + QLatin1String(name));
}

bool HasPlaybackDevice()
{
    return !QDir(QStringLiteral("/dev/snd")).entryList({QStringLiteral("pcm*p")}, QDir::System).isEmpty();
}

/// The desktop's own player of sound files, if it can play; "" without one.
QString Player()
{
    struct Candidate {
        const char* program;
        bool answers;
    };
    const Candidate candidates[] = {
        {"pw-play", HasRuntimeSocket("pipewire-0")},
        {"paplay", HasRuntimeSocket("pulse/native") || qEnvironmentVariableIsSet("PULSE_SERVER")},
        {"aplay", HasPlaybackDevice()},
        {"afplay", true},
    };
    for (const Candidate& candidate : candidates)
        if (candidate.answers)
            if (QString path = QStandardPaths::findExecutable(QLatin1String(candidate.program)); !path.isEmpty())
                return path;
    return {};
}

class ScanPlayer : public QObject {
public:
    ScanPlayer()
        : QObject(qApp)
        , m_player(Player())
    {
        Ignoring([this] { m_isOn = CBool(GetConfig(QStringLiteral("Scan Sound"), TruthText(m_isOn))); });
        // A player reads files only, and the sounds lie within the program.
        m_found.reset(QTemporaryFile::createNativeFile(QStringLiteral(":/sounds/found.wav")));
        m_notFound.reset(QTemporaryFile::createNativeFile(QStringLiteral(":/sounds/not-found.wav")));
    }

    void Play(ScanSound sound)
    {
        const auto& file = sound == ScanSound::Found ? m_found : m_notFound;
        if (!m_isOn)
            return;
        if (m_player.isEmpty() || !file) {
            // The window system has one sound only: the one that calls for its user.
            if (sound == ScanSound::NotFound)
                QApplication::beep();
            return;
        }
        if (findChildren<QProcess*>().size() >= MostPlayers)
            return;
        auto* process = new QProcess(this);
        process->setStandardOutputFile(QProcess::nullDevice());
        process->setStandardErrorFile(QProcess::nullDevice());
        QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
        QObject::connect(process, &QProcess::errorOccurred, process, &QObject::deleteLater);
        process->start(m_player, {file->fileName()});
    }

private:
    QString m_player;
    bool m_isOn = !m_player.isEmpty();
    std::unique_ptr<QTemporaryFile> m_found, m_notFound;
};

} // namespace

void PlayScanSound(ScanSound sound)
{
    static QPointer<ScanPlayer> player;
    if (!player)
        player = new ScanPlayer;
    player->Play(sound);
}
