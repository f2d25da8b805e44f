#include "desktop/shell/file_copy.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProgressDialog>

namespace kavela::desktop {

namespace {

constexpr qint64 Piece = 4 << 20;

/// Copies piece by piece, asking `goesOn` after each.
template <class GoesOn>
CopyEnd copyPieces(QFile& source, QFile& target, GoesOn goesOn) {
    while (!source.atEnd()) {
        const QByteArray piece = source.read(Piece);
        if (piece.isEmpty() || target.write(piece) != piece.size())
            return CopyEnd::Failed;
        if (!goesOn(source.pos()))
            return CopyEnd::Cancelled;
    }
    return target.flush() ? CopyEnd::Done : CopyEnd::Failed;
}

} // namespace

CopyEnd copyFile(const QString& from, const QString& to, QWidget* over) {
    QFile source(from);
    QFile target(to + ".part");
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
        return CopyEnd::Failed;
    QProgressDialog progress(QObject::tr("Copying %1").arg(QFileInfo(from).fileName()),
                             QObject::tr("Cancel"), 0, 1000, over);
    progress.setWindowModality(Qt::WindowModal);
    const CopyEnd end = copyPieces(source, target, [&](qint64 done) {
        progress.setValue(static_cast<int>(done * 1000 / std::max<qint64>(source.size(), 1)));
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        return !progress.wasCanceled();
    });
    target.close();
    if (end == CopyEnd::Done && target.rename(to))
        return CopyEnd::Done;
    target.remove();
    return end == CopyEnd::Done ? CopyEnd::Failed : end;
}

} // namespace kavela::desktop
