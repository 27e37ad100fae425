#include "models/UnchangedEntries.h"

#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include "models/CMySortFilterProxyModel.h"
#include "tests/support/ConfinedModel.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QFileIconProvider>
#include <QRandomGenerator>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace {

/** What the models of these tests show of a folder, and what is looked up on the disk to compare. */
constexpr QDir::Filters ShownEntries = QDir::AllEntries | QDir::NoDotAndDotDot;

/** More entries than the gatherer sends at first, so that a listing comes in several batches. */
constexpr int ManyFiles = 150;

using Plain = ConfinedModel<QFileSystemModel>;
using Step = std::function<void(const TestFolder&)>;

/** Counts the entries that a model has been given: it asks for the icon of each. */
class CountingProvider : public QFileIconProvider
{
public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo&) const override
    {
        ++m_asked;
        return QIcon();
    }

    mutable int m_asked = 0;
};

/** Describes files in other words each time. */
class FickleProvider : public CountingProvider
{
public:
    QString type(const QFileInfo&) const override { return m_text; }

    QString m_text = QStringLiteral("one");
};

/** The base, given only what has changed. */
class Followed : public Plain
{
public:
    explicit Followed(const QString& fetched) : Plain(fetched)
    {
        setIconProvider(&m_provider);
        UnchangedEntries::Follow(*this, [this] { return sender(); });
    }

    CountingProvider m_provider;
};

QString Line(const QString& name, bool isDir, qint64 size, const QDateTime& modified, int permissions)
{
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(name, isDir ? QStringLiteral("folder") : QString::number(size))
        .arg(modified.toMSecsSinceEpoch())
        .arg(permissions, 0, 16)
        .arg(isDir);
}

QStringList OnDisk(const QString& path, QDir::Filters filters = ShownEntries)
{
    QStringList lines;
    const QFileInfoList entries = QDir(path).entryInfoList(filters);
    for (const QFileInfo& info : entries)
        lines.append(Line(info.fileName(), info.isDir(), info.size(), info.lastModified(),
                          static_cast<int>(info.permissions())));
    lines.sort();
    return lines;
}

QStringList Shown(const QFileSystemModel& model, const QString& path)
{
    QStringList lines;
    const QModelIndex root = model.index(path);
    if (!root.isValid())
        return {QStringLiteral("not there")};
    for (int row = 0; row < model.rowCount(root); ++row) {
        const QModelIndex index = model.index(row, 0, root);
        lines.append(Line(model.fileInfo(index).fileName(), model.isDir(index), model.size(index),
                          model.lastModified(index), static_cast<int>(model.permissions(index))));
    }
    lines.sort();
    return lines;
}

QDateTime Time(int second)
{
    return QDateTime(QDate(2020, 2, 1), QTime(12, 0)).addSecs(second);
}

void SetTime(const QString& path, const QDateTime& time)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.setFileTime(time, QFile::FileModificationTime))
        qFatal("cannot set a time");
}

void Move(const QString& from, const QString& to)
{
    if (!QDir().rename(from, to))
        qFatal("cannot move %s", qPrintable(from));
}

/** A plain model and followed ones that show the same folder "shown". */
struct Models
{
    explicit Models(const TestFolder& folder)
        : m_folder(folder),
          m_path(folder.Folder(QStringLiteral("shown"))),
          m_plain(folder.Path()),
          m_followed(folder.Path()),
          m_list(folder.Path())
    {
        for (QFileSystemModel* model : All())
            model->setFilter(ShownEntries);
        m_plain.Load(m_path);
        m_followed.Load(m_path);
        m_list.Load(m_path);
    }

    std::vector<QFileSystemModel*> All() { return {&m_plain, &m_followed, &m_list}; }

    /** Makes the models list the folder again, as the base does not watch the files themselves. */
    void Poke() { m_folder.File(QStringLiteral("shown/poke%1").arg(++m_pokes)); }

    /** Lists the folder until the stamps of all of its entries have been taken. */
    bool Warm()
    {
        for (int round = 0; round < 3; ++round) {
            Poke();
            if (!ShowTheDisk())
                return false;
        }
        return true;
    }

    bool ShowTheDisk()
    {
        const auto all = All();
        return QTest::qWaitFor([&] {
            const QStringList expected = OnDisk(m_path);
            return std::all_of(all.begin(), all.end(), [&](const QFileSystemModel* model) {
                return Shown(*model, m_path) == expected;
            });
        });
    }

    const TestFolder& m_folder;
    QString m_path;
    Plain m_plain;
    Followed m_followed;
    ConfinedModel<CKTFMListModel> m_list;
    int m_pokes = 0;
};

void FillWithFiles(const TestFolder& folder, int count)
{
    for (int i = 0; i < count; ++i)
        folder.File(QStringLiteral("shown/file%1.txt").arg(i), "abc", Time(i));
}

} // namespace

Q_DECLARE_METATYPE(std::vector<Step>)

class tst_UnchangedEntries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entriesAsTheyWereAreNotHandedOnAgain();
    void whatChangesIsShown_data();
    void whatChangesIsShown();
    void sizeThatChangesAloneIsShownAsByTheBase();
    void folderMovedAwayAndBackShowsItsEntries_data();
    void folderMovedAwayAndBackShowsItsEntries();
    void changesWhileAnotherFolderIsShownAreNotMissed();
    void filteredEntriesAppearWhenTheFilterGoes();
    void hiddenFileMovedAwayAndBackAppearsWhenTheFilterGoes();
    void proxyOnTheListModelShowsTheSame();
    void changesByTheModelItselfAreShown();
    void treeModelShowsFoldersMadeAnew();
    void providerThatIsSetLaterIsAskedForAll();
    void modelsMayDieWhileTheyList();
    void manyChangesEndAsOnDisk();
};

void tst_UnchangedEntries::entriesAsTheyWereAreNotHandedOnAgain()
{
    const TestFolder folder;
    FillWithFiles(folder, ManyFiles);
    Models models(folder);
    QVERIFY(models.Warm());
    models.m_followed.m_provider.m_asked = 0;
    models.Poke();
    QVERIFY(models.ShowTheDisk());
    // The new file, the folder itself and the one above.
    QVERIFY(models.m_followed.m_provider.m_asked > 0);
    QVERIFY2(models.m_followed.m_provider.m_asked < 20,
             qPrintable(QString::number(models.m_followed.m_provider.m_asked)));
}

void tst_UnchangedEntries::whatChangesIsShown_data()
{
    QTest::addColumn<std::vector<Step>>("steps");
    const auto file = [](const TestFolder& folder) { return folder.Path(QStringLiteral("shown/file7.txt")); };
    const auto outside = [](const TestFolder& folder) { return folder.Path(QStringLiteral("outside")); };
    const Step remove = [file](const TestFolder& folder) { QVERIFY(QFile::remove(file(folder))); };
    const Step make = [](const TestFolder& folder) {
        folder.File(QStringLiteral("shown/file7.txt"), "abc", Time(7));
    };
    const Step out = [=](const TestFolder& folder) { Move(file(folder), outside(folder)); };
    const Step back = [=](const TestFolder& folder) { Move(outside(folder), file(folder)); };
    const Step touch = [file](const TestFolder& folder) { SetTime(file(folder), Time(5000)); };
    const Step untouch = [file](const TestFolder& folder) { SetTime(file(folder), Time(7)); };
    const Step forbid = [file](const TestFolder& folder) {
        QVERIFY(QFile::setPermissions(file(folder), QFile::ReadOwner | QFile::ReadUser));
    };
    const Step allow = [file](const TestFolder& folder) {
        QVERIFY(QFile::setPermissions(file(folder), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    };
    const Step write = [](const TestFolder& folder) {
        folder.File(QStringLiteral("shown/file7.txt"), "longer", Time(9));
    };
    const Step makeFolder = [](const TestFolder& folder) {
        folder.Folder(QStringLiteral("shown/file7.txt"));
    };
    const Step removeFolder = [file](const TestFolder& folder) { QVERIFY(QDir().rmdir(file(folder))); };
    const Step link = [](const TestFolder& folder) {
        folder.Link(folder.Path(QStringLiteral("shown/file8.txt")), QStringLiteral("shown/file7.txt"));
    };
    const Step otherLink = [](const TestFolder& folder) {
        folder.Link(folder.Path(QStringLiteral("shown/file9.txt")), QStringLiteral("shown/file7.txt"));
    };
    const Step changeTarget = [](const TestFolder& folder) {
        folder.File(QStringLiteral("shown/file8.txt"), "longer", Time(99));
    };
    const auto both = [](const Step& first, const Step& second) {
        return Step([first, second](const TestFolder& folder) {
            first(folder);
            second(folder);
        });
    };
    const auto row = [](const char* name, const std::vector<Step>& steps) { QTest::newRow(name) << steps; };
    row("touched", {touch});
    row("touched and back", {touch, untouch});
    row("permissions", {forbid, allow});
    row("written", {write});
    row("removed", {remove});
    row("removed and made again", {remove, make});
    row("removed and made again at once", {both(remove, make)});
    row("moved out and back", {out, back});
    row("moved out and back at once", {both(out, back)});
    row("replaced by a folder and back", {both(remove, makeFolder), both(removeFolder, make)});
    row("replaced by a link and back", {both(remove, link), both(remove, make)});
    row("link that leads elsewhere", {both(remove, link), both(remove, otherLink), both(remove, link)});
    row("link whose target changes", {both(remove, link), changeTarget});
}

void tst_UnchangedEntries::whatChangesIsShown()
{
    QFETCH(std::vector<Step>, steps);
    for (const bool warm : {false, true}) {
        const TestFolder folder;
        FillWithFiles(folder, ManyFiles);
        Models models(folder);
        if (warm)
            QVERIFY(models.Warm());
        for (const Step& step : steps) {
            step(folder);
            models.Poke();
            QVERIFY(models.ShowTheDisk());
        }
    }
}

void tst_UnchangedEntries::sizeThatChangesAloneIsShownAsByTheBase()
{
    const TestFolder folder;
    FillWithFiles(folder, 3);
    Models models(folder);
    QVERIFY(models.Warm());
    // The base takes a file of the same time and permissions for the same.
    const QString other = folder.File(QStringLiteral("other"), "longer", Time(1));
    const QString path = folder.Path(QStringLiteral("shown/file1.txt"));
    QVERIFY(QFile::remove(path));
    Move(other, path);
    models.Poke();
    const QString poke = folder.Path(QStringLiteral("shown/poke%1").arg(models.m_pokes));
    for (QFileSystemModel* model : models.All())
        QTRY_VERIFY(model->index(poke).isValid());
    QTRY_COMPARE(Shown(models.m_followed, models.m_path), Shown(models.m_plain, models.m_path));
    QTRY_COMPARE(Shown(models.m_list, models.m_path), Shown(models.m_plain, models.m_path));
}

void tst_UnchangedEntries::folderMovedAwayAndBackShowsItsEntries_data()
{
    QTest::addColumn<QString>("moved");
    QTest::addColumn<QString>("listed");
    QTest::newRow("the folder") << "shown/sub"
                                << "shown/sub";
    QTest::newRow("a hidden folder") << "shown/.sub"
                                     << "shown/.sub";
    QTest::newRow("the folder above") << "shown/sub"
                                      << "shown/sub/deep/deeper";
    QTest::newRow("a hidden folder above") << "shown/.sub"
                                           << "shown/.sub/deep";
}

void tst_UnchangedEntries::folderMovedAwayAndBackShowsItsEntries()
{
    QFETCH(QString, moved);
    QFETCH(QString, listed);
    const TestFolder folder;
    for (int i = 0; i < 5; ++i)
        folder.File(listed + QStringLiteral("/file%1").arg(i), "abc", Time(i));
    Models models(folder);
    const QString path = folder.Path(listed);
    for (int round = 0; round < 3; ++round) {
        // What was known stays listed until the folder above is; a new node is listed when it is shown.
        for (QFileSystemModel* model : models.All()) {
            model->setRootPath(models.m_path);
            model->setRootPath(path);
            QTRY_COMPARE(Shown(*model, path), OnDisk(path));
        }
        folder.File(listed + QStringLiteral("/poke%1").arg(round));
        for (QFileSystemModel* model : models.All())
            QTRY_COMPARE(Shown(*model, path), OnDisk(path));
        for (QFileSystemModel* model : models.All())
            model->setRootPath(models.m_path);
        Move(folder.Path(moved), folder.Path(QStringLiteral("away")));
        models.Poke();
        QVERIFY(models.ShowTheDisk());
        Move(folder.Path(QStringLiteral("away")), folder.Path(moved));
        models.Poke();
        QVERIFY(models.ShowTheDisk());
    }
}

void tst_UnchangedEntries::changesWhileAnotherFolderIsShownAreNotMissed()
{
    const TestFolder folder;
    FillWithFiles(folder, ManyFiles);
    Models models(folder);
    QVERIFY(models.Warm());
    const QString other = folder.Folder(QStringLiteral("other"));
    for (QFileSystemModel* model : models.All())
        model->setRootPath(other);
    SetTime(folder.Path(QStringLiteral("shown/file3.txt")), Time(4000));
    QVERIFY(QFile::remove(folder.Path(QStringLiteral("shown/file4.txt"))));
    folder.File(QStringLiteral("shown/new.txt"), "abc");
    for (QFileSystemModel* model : models.All())
        model->setRootPath(models.m_path);
    QVERIFY(models.ShowTheDisk());
}

void tst_UnchangedEntries::filteredEntriesAppearWhenTheFilterGoes()
{
    const TestFolder folder;
    FillWithFiles(folder, ManyFiles);
    folder.File(QStringLiteral("shown/a.png"));
    Models models(folder);
    for (QFileSystemModel* model : models.All()) {
        model->setNameFilterDisables(false);
        model->setNameFilters({QStringLiteral("*.png")});
    }
    folder.File(QStringLiteral("shown/b.png"));
    for (QFileSystemModel* model : models.All())
        QTRY_COMPARE(Shown(*model, models.m_path).size(), 2);
    models.Poke();
    folder.File(QStringLiteral("shown/c.png"));
    SetTime(folder.Path(QStringLiteral("shown/file3.txt")), Time(4000));
    for (QFileSystemModel* model : models.All())
        QTRY_COMPARE(Shown(*model, models.m_path).size(), 3);
    for (QFileSystemModel* model : models.All())
        model->setNameFilters({});
    models.Poke();
    QVERIFY(models.ShowTheDisk());
}

void tst_UnchangedEntries::hiddenFileMovedAwayAndBackAppearsWhenTheFilterGoes()
{
    const TestFolder folder;
    const QString hidden = folder.File(QStringLiteral("shown/.hidden"), "abc", Time(1));
    Models models(folder);
    QVERIFY(models.Warm());
    Move(hidden, folder.Path(QStringLiteral("away")));
    models.Poke();
    QVERIFY(models.ShowTheDisk());
    Move(folder.Path(QStringLiteral("away")), hidden);
    models.Poke();
    QVERIFY(models.ShowTheDisk());
    for (QFileSystemModel* model : models.All())
        model->setFilter(ShownEntries | QDir::Hidden);
    for (QFileSystemModel* model : models.All())
        QTRY_COMPARE(Shown(*model, models.m_path), OnDisk(models.m_path, ShownEntries | QDir::Hidden));
}

void tst_UnchangedEntries::proxyOnTheListModelShowsTheSame()
{
    const TestFolder folder;
    FillWithFiles(folder, ManyFiles);
    Models models(folder);
    models.m_list.SetSortedByProxy(true);
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&models.m_list);
    proxy.sort(0);
    QVERIFY(models.Warm());
    QVERIFY(QFile::remove(folder.Path(QStringLiteral("shown/file4.txt"))));
    models.Poke();
    QVERIFY(models.ShowTheDisk());
    const QModelIndex root = proxy.mapFromSource(models.m_list.index(models.m_path));
    QStringList names;
    for (int row = 0; row < proxy.rowCount(root); ++row)
        names.append(models.m_list.fileInfo(proxy.mapToSource(proxy.index(row, 0, root))).fileName());
    names.sort();
    QCOMPARE(names, QDir(models.m_path).entryList(ShownEntries, QDir::Name));
}

void tst_UnchangedEntries::changesByTheModelItselfAreShown()
{
    const TestFolder folder;
    FillWithFiles(folder, 5);
    Models models(folder);
    QVERIFY(models.Warm());
    Followed& model = models.m_followed;
    model.setReadOnly(false);
    const auto index = [&](const char* name) {
        return model.index(models.m_path + QLatin1Char('/') + QLatin1String(name));
    };
    QVERIFY(model.setData(index("file1.txt"), QStringLiteral("renamed.txt")));
    QVERIFY(models.ShowTheDisk());
    QVERIFY(model.setData(index("renamed.txt"), QStringLiteral("file1.txt")));
    QVERIFY(models.ShowTheDisk());
    QVERIFY(model.mkdir(model.index(models.m_path), QStringLiteral("made")).isValid());
    QVERIFY(models.ShowTheDisk());
    QVERIFY(model.rmdir(index("made")));
    QVERIFY(model.remove(index("file2.txt")));
    QVERIFY(models.ShowTheDisk());
    folder.File(QStringLiteral("shown/made"), "abc");
    folder.File(QStringLiteral("shown/file2.txt"), "abc", Time(2));
    QVERIFY(models.ShowTheDisk());
}

void tst_UnchangedEntries::treeModelShowsFoldersMadeAnew()
{
    const TestFolder folder;
    folder.File(QStringLiteral("shown/file"), "abc");
    folder.Folder(QStringLiteral("shown/a/b"));
    const QString path = folder.Path(QStringLiteral("shown"));
    ConfinedModel<CKTFMTreeModel> tree(folder.Path());
    tree.Load(path);
    constexpr QDir::Filters folders = QDir::AllDirs | QDir::NoDotAndDotDot;
    for (int round = 0; round < 3; ++round) {
        folder.Folder(QStringLiteral("shown/poke%1").arg(round));
        QTRY_COMPARE(Shown(tree, path), OnDisk(path, folders));
        Move(folder.Path(QStringLiteral("shown/a")), folder.Path(QStringLiteral("away")));
        QTRY_COMPARE(Shown(tree, path), OnDisk(path, folders));
        Move(folder.Path(QStringLiteral("away")), folder.Path(QStringLiteral("shown/a")));
        QTRY_COMPARE(Shown(tree, path), OnDisk(path, folders));
        tree.fetchMore(tree.index(path + QStringLiteral("/a")));
        QTRY_COMPARE(Shown(tree, path + QStringLiteral("/a")), OnDisk(path + QStringLiteral("/a"), folders));
    }
}

void tst_UnchangedEntries::providerThatIsSetLaterIsAskedForAll()
{
    const TestFolder folder;
    FillWithFiles(folder, 5);
    Models models(folder);
    QVERIFY(models.Warm());
    FickleProvider fickle;
    models.m_followed.setIconProvider(&fickle);
    const auto type = [&] {
        return models.m_followed.type(models.m_followed.index(models.m_path + QStringLiteral("/file1.txt")));
    };
    models.Poke();
    QTRY_COMPARE(type(), QStringLiteral("one"));
    fickle.m_text = QStringLiteral("two");
    models.Poke();
    QTRY_COMPARE(type(), QStringLiteral("two"));
    models.m_followed.setIconProvider(&models.m_followed.m_provider);
    models.Poke();
    QTRY_COMPARE(type(),
                 models.m_plain.type(models.m_plain.index(models.m_path + QStringLiteral("/file1.txt"))));
}

void tst_UnchangedEntries::modelsMayDieWhileTheyList()
{
    const TestFolder folder;
    FillWithFiles(folder, 10 * ManyFiles);
    const QString path = folder.Path(QStringLiteral("shown"));
    QRandomGenerator random(1);
    for (int round = 0; round < 60; ++round) {
        auto model = std::make_unique<ConfinedModel<CKTFMListModel>>(folder.Path());
        QSignalSpy inserted(model.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy loaded(model.get(), &QFileSystemModel::directoryLoaded);
        model->setRootPath(path);
        if (round % 3 > 0)
            QTRY_VERIFY(!(round % 3 == 1 ? inserted : loaded).isEmpty());
        folder.File(QStringLiteral("shown/new%1").arg(round));
        for (int turns = random.bounded(12); turns > 0; --turns)
            QCoreApplication::processEvents();
        model.reset();
        QCoreApplication::processEvents();
    }
    Models models(folder);
    QVERIFY(models.ShowTheDisk());
}

void tst_UnchangedEntries::manyChangesEndAsOnDisk()
{
    const TestFolder folder;
    FillWithFiles(folder, ManyFiles);
    Models models(folder);
    QRandomGenerator random(7);
    for (int change = 0; change < 600; ++change) {
        const QString name = QStringLiteral("shown/%1").arg(random.bounded(12));
        const QString path = folder.Path(name);
        const QString away = folder.Path(QStringLiteral("away%1").arg(random.bounded(4)));
        const QFileInfo info(path);
        switch (random.bounded(6)) {
        case 0:
            if (!info.isDir())
                folder.File(name, QByteArray(random.bounded(9), 'x'), Time(10000 + change));
            break;
        case 1:
            if (!info.exists())
                folder.Folder(name);
            break;
        case 2:
            QDir().rename(path, away);
            break;
        case 3:
            QDir().rename(away, path);
            break;
        case 4:
            if (info.exists())
                QFile::setPermissions(path, random.bounded(2) ? QFile::ReadOwner | QFile::WriteOwner
                                                              : QFile::ReadOwner | QFile::ExeOther);
            break;
        default:
            QCoreApplication::processEvents();
            if (random.bounded(4) == 0) {
                models.Poke();
                QVERIFY(models.ShowTheDisk());
            }
        }
    }
    models.Poke();
    QVERIFY(models.ShowTheDisk());
}

KTFM_TEST_MAIN(tst_UnchangedEntries)
#include "tst_unchangedentries.moc"
