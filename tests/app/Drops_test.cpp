#include "WindowFixture.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QTabWidget>
#include <QUrl>

namespace tintora {
namespace {

// Files dropped on the window, and more of them than anybody expects.

class DropsTest : public test::WindowTest {
  protected:
    void Drop(const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        Drop(data);
    }

    /// As the desktop tells of it: the pointer comes in, and the button comes up.
    void Drop(const QMimeData& data) {
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &enter);
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &drop);
    }

    QString Make(const char* name, const QByteArray& bytes = "a {}") { return ToQString(MakeFile(name, bytes)); }
};

TEST_F(DropsTest, EachFileOpensInTheirOrder) {
    Drop({Make("a.css"), Make("b.css"), Make("with blank #%.css")});
    EXPECT_EQ(Captions(*window), QStringList({"with blank #%.css", "b.css", "a.css"}));
}

TEST_F(DropsTest, FoldersAndMissingFilesOpenNothing) {
    Drop({folder.path(), folder.filePath("missing.css")});
    EXPECT_TRUE(window->OpenDocuments().empty());
    EXPECT_TRUE(told.messages.isEmpty());
}

TEST_F(DropsTest, AddressesOfTheWebOpenNothing) {
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/a.css"))});
    Drop(data);
    EXPECT_TRUE(window->OpenDocuments().empty());
}

TEST_F(DropsTest, ALinkOpensTheFileThatItNames) {
    const QString file = Make("a.css", "linked {}");
    QFile::link(file, folder.filePath("link.css"));
    Drop({folder.filePath("link.css")});
    ASSERT_NE(window->ActiveDocument(), nullptr);
    EXPECT_EQ(window->ActiveDocument()->GetText(), u"linked {}");
}

TEST_F(DropsTest, ABinaryFileOpensAsTheTextThatItsBytesGive) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.append(static_cast<char>(byte));
    Drop({Make("a.bin", bytes)});
    ASSERT_NE(window->ActiveDocument(), nullptr);
    EXPECT_EQ(window->ActiveDocument()->GetText().size(), 256U);
}

TEST_F(DropsTest, AHundredFilesAtOnceAndAHundredMoreAllOpen) {
    window->show();
    QStringList paths;
    for (int number = 0; number < 200; ++number)
        paths.append(Make(qPrintable(QStringLiteral("%1.css").arg(number))));
    Drop(paths.mid(0, 100));
    EXPECT_EQ(window->OpenDocuments().size(), 100U);
    Drop(paths.mid(100));
    Drop(paths.mid(50, 100));
    EXPECT_EQ(window->OpenDocuments().size(), 200U) << "a file is never open twice";
    EXPECT_EQ(window->findChild<QTabWidget*>()->count(), 200);
    EXPECT_TRUE(window->close());
}

}  // namespace
}  // namespace tintora
