#include "models/CMySortFilterProxyModel.h"

#include <KTFileManager2QU/CKTFMListModel.h>

#include "tests/support/ConfinedModel.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QFile>
#include <QIcon>

#include <cstring>
#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

/** Hears of every opening of a file, by whichever thread. */
class Openings
{
public:
    Openings() : m_descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}
    ~Openings() { close(m_descriptor); }
    Openings(const Openings&) = delete;
    Openings& operator=(const Openings&) = delete;

    bool Watch(const QString& path)
    {
        return inotify_add_watch(m_descriptor, QFile::encodeName(path).constData(), IN_OPEN) >= 0;
    }

    /** @return whether any watched file was opened since the last call */
    bool Any()
    {
        alignas(inotify_event) char buffer[4096];
        return read(m_descriptor, buffer, sizeof buffer) > 0;
    }

private:
    int m_descriptor;
};

bool MakeSocket(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address = {};
    if (static_cast<std::size_t>(name.size()) >= sizeof address.sun_path)
        return false;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool done = bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(descriptor);
    return done;
}

/** Asks a model for everything that a view would, and paints each icon. */
void ShowAll(const QAbstractItemModel& model, const QModelIndex& root)
{
    for (int row = 0; row < model.rowCount(root); ++row) {
        for (int column = 0; column < model.columnCount(root); ++column) {
            const QModelIndex index = model.index(row, column, root);
            for (const int role : {Qt::DisplayRole, Qt::EditRole, Qt::ToolTipRole, Qt::SizeHintRole})
                index.data(role);
            index.data(Qt::DecorationRole).value<QIcon>().pixmap(32);
        }
    }
}

} // namespace

class tst_SpecialFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pipesAndSocketsAreNeverOpened_data();
    void pipesAndSocketsAreNeverOpened();
};

void tst_SpecialFiles::pipesAndSocketsAreNeverOpened_data()
{
    QTest::addColumn<bool>("listed");
    QTest::newRow("hidden by the model's own filter") << false;
    QTest::newRow("listed by a host's filter") << true;
}

void tst_SpecialFiles::pipesAndSocketsAreNeverOpened()
{
    QFETCH(bool, listed);
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    const QString pipe = folder.Path(QStringLiteral("pipe.txt"));
    const QString socketPath = folder.Path(QStringLiteral("socket.txt"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(MakeSocket(socketPath));
    Openings openings;
    QVERIFY(openings.Watch(pipe));
    QVERIFY(openings.Watch(socketPath));

    ConfinedModel<CKTFMListModel> model(folder.Path());
    model.SetShowTips(true);
    model.SetRenamable(true);
    if (listed)
        model.setFilter(model.filter() | QDir::System);
    const QModelIndex root = model.Load(folder.Path());
    QCOMPARE(model.rowCount(root), listed ? 3 : 1);
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    for (int mode = 0; mode <= 3; ++mode) {
        model.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
        ShowAll(model, root);
        proxy.sort(mode, Qt::DescendingOrder);
        ShowAll(proxy, proxy.mapFromSource(root));
    }
    if (listed)
        QVERIFY(model.setData(model.index(pipe), QStringLiteral("renamed.txt")));
    QVERIFY(!openings.Any());

    // An opening would have been heard of.
    const QString name = listed ? folder.Path(QStringLiteral("renamed.txt")) : pipe;
    const int descriptor = open(QFile::encodeName(name).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(descriptor >= 0);
    close(descriptor);
    QVERIFY(openings.Any());
}

KTFM_TEST_MAIN(tst_SpecialFiles)
#include "tst_specialfiles_linux.moc"
