// SPDX-License-Identifier: MIT
#include "InspectionAnswer.h"

#include "InspectionResults.h"
#include "ReaderPipe.h"
#include "foundation/Log.h"
#include "foundation/MemoryLimit.h"

#include <cstring>

namespace lumora
{

namespace
{

/// Where this process' log goes, which can reach no log of the system.
ReaderPipe *logPipe = nullptr;

void sendLine(QtMsgType, const QMessageLogContext &context, const QString &line)
{
    if (logPipe != nullptr && context.category != nullptr &&
        std::strcmp(context.category, lumoraLog().categoryName()) == 0)
        logPipe->send(logWord, line.toUtf8());
}

/// Sends what is logged over the pipe as long as it exists.
class LogSending
{
public:
    explicit LogSending(ReaderPipe &pipe)
    {
        logPipe = &pipe;
        qInstallMessageHandler(&sendLine);
    }
    ~LogSending()
    {
        qInstallMessageHandler(nullptr);
        logPipe = nullptr;
    }
    Q_DISABLE_COPY_MOVE(LogSending)
};

} // namespace

int answerInspection(const QString &path, const QString &workFolder, int iconScale, int descriptor)
{
    becomeReader({{path}, {}, {workFolder + u'/' + inspectionFolder}});
    ReaderPipe pipe(descriptor);
    const LogSending log(pipe);
    bool isSent = false;
    const InspectionResults results{
        [&pipe](const GatheredFacts &gathered) { pipe.send(gatheredWord, bytesOf(gathered)); },
        [&pipe, &isSent](const ArtworkReport &artwork) { isSent = pipe.send(artworkWord, bytesOf(artwork)); },
    };
    const CmsProfileDecoder decoder;
    const Outcome outcome = withinMemory(path, [&]() -> Outcome {
        inspectHere(path, {workFolder, decoder, {}, {}, iconScale}, results);
        return Done{};
    });
    if (!outcome)
        return pipe.sendFailure(outcome.failure().code) ? 0 : 1;
    return isSent ? 0 : 1;
}

} // namespace lumora
