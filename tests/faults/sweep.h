#pragma once

#include "acts.h"

#include "support/faulty_disk.h"

/// The operation of an act at which the disk fails, or the process ends. Number 0 is none.
struct Point {
    int number;
    faulty_disk::Fault fault;
};

struct Course;

/// One act at all the points where it touches the disk. After each the file has to be whole and to hold the rows of
/// before the act, or of behind one of its commits; what did not come to its end has to be told; and the program
/// starts. A finding is a text; "" stands for none.
class Sweep {
public:
    /// Does the act on a good disk.
    explicit Sweep(const Act& act);

    /// Of the act on a good disk: it has to commit as often as it may, leave relations whole and lose no goods.
    QString Finding() const;
    QList<Point> Points() const;
    QString FindingAt(Point point) const;

private:
    QString Judge(const QString& folder, const Course& course) const;

    const Act& m_act;
    QString m_failures;
    QStringList m_told;
    QList<faulty_disk::Operation> m_operations;
    QStringList m_states; ///< all rows before the act and behind each commit
    QStringList m_broken; ///< relations of these states
    QStringList m_goods;
};

/// In a process that ends at the point.
void EndAt(const Act& act, Point point, const QString& folder);

/// Where the disk takes no more of a file, as a share of the file, and whether the process ends there.
struct FilePoint {
    double share;
    bool endsProcess;
};

/// The writing of one file on a disk that is full at some point. The old file has to stay whole, or to be gone where
/// the act deletes it first; nothing else may be left there, and the failure has to be told.
class FileSweep {
public:
    explicit FileSweep(const FileAct& act);

    QString Finding() const;
    static QList<FilePoint> Points();
    QString FindingAt(FilePoint point) const;

private:
    QString Judge(const QString& folder, const Course& course) const;

    const FileAct& m_act;
    QString m_finding;
    qint64 m_size = 0;
};

void EndAt(const FileAct& act, qint64 bytes, const QString& folder);
