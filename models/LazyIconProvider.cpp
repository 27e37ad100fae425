#include "models/LazyIconProvider.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPixmap>

#include <utility>

namespace {

/** The icon of one file, asked of the platform at the first painting. */
class LazyIconEngine : public QIconEngine
{
public:
    LazyIconEngine(std::shared_ptr<QFileIconProvider> platform, const QFileInfo& info)
        : m_pPlatform(std::move(platform)),
          m_info(info)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        Icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        // The size is in device pixels, while an icon is asked in logical ones.
        const bool sharp = QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps);
        return Icon().pixmap(sharp ? size / qGuiApp->devicePixelRatio() : size, mode, state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Icon().actualSize(size, mode, state);
    }

    QIconEngine* clone() const override { return new LazyIconEngine(*this); }

    QString key() const override { return QStringLiteral("LazyIconEngine"); }

    void virtual_hook(int id, void* data) override
    {
        if (id != QIconEngine::AvailableSizesHook) {
            QIconEngine::virtual_hook(id, data);
            return;
        }
        auto* argument = static_cast<QIconEngine::AvailableSizesArgument*>(data);
        argument->sizes = Icon().availableSizes(argument->mode, argument->state);
    }

private:
    const QIcon& Icon()
    {
        if (m_pPlatform) {
            m_icon = m_pPlatform->icon(m_info);
            m_pPlatform.reset();
        }
        return m_icon;
    }

    std::shared_ptr<QFileIconProvider> m_pPlatform; ///< null once the icon is known
    QFileInfo m_info;
    QIcon m_icon;
};

} // namespace

LazyIconProvider::LazyIconProvider() : m_pPlatform(std::make_shared<QFileIconProvider>()) {}

LazyIconProvider::~LazyIconProvider() = default;

QIcon LazyIconProvider::icon(const QFileInfo& info) const
{
    m_pPlatform->setOptions(options());
    return QIcon(new LazyIconEngine(m_pPlatform, info));
}
