#include "desktop/shell/file_copy.h"

#include "desktop/shell/background_work.h"

#include <QByteArray>
#include <QFile>

namespace kavela::desktop {

namespace {

/// Small enough for a stick that writes a few megabytes in a second to be cancelled at once.
constexpr qint64 Piece = 1 << 20;

CopyEnd copyPieces(QFile& source, QFile& target, const WorkSteps& steps) {
    while (!source.atEnd()) {
        if (steps.isCancelled())
            return CopyEnd::Cancelled;
        const QByteArray piece = source.read(Piece);
        if (piece.isEmpty() || target.write(piece) != piece.size())
            return CopyEnd::Failed;
        steps.tellProgress(source.pos(), source.size());
    }
    return target.flush() ? CopyEnd::Done : CopyEnd::Failed;
}

} // namespace

CopyEnd copyFile(const QString& from, const QString& to, const WorkSteps& steps) {
    QFile source(from);
    QFile target(to + ".part");
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
        return CopyEnd::Failed;
    const CopyEnd end = copyPieces(source, target, steps);
    target.close();
    if (end == CopyEnd::Done && target.rename(to))
        return CopyEnd::Done;
    target.remove();
    return end == CopyEnd::Done ? CopyEnd::Failed : end;
}

} // namespace kavela::desktop
