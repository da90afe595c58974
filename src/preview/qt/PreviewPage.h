#pragma once

#include <QElapsedTimer>
#include <QWebEnginePage>

namespace tintora {

/// A page that stays where it is put. Of its own accord it goes nowhere, opens nothing and asks nothing: links, forms,
/// scripts, dialogues and requests for permission are refused without a word. What the user chose is told instead.
class PreviewPage : public QWebEnginePage {
    Q_OBJECT

  public:
    PreviewPage(QWebEngineProfile& profile, QObject* parent);

    /// Goes to an address, which is the only way to one.
    void Go(const QUrl& address);

    /// Where it went last.
    [[nodiscard]] const QUrl& Address() const { return address_; }

    /// Whether what is here wanted to go elsewhere of its own accord and was refused. `Go` ends that as soon as what it
    /// leads to is here, and so does the end of the process.
    [[nodiscard]] bool HasStrayed() const { return hasStrayed_; }

    /// The user has pressed a button or a key in the page: the next link that the page wants to follow within a second
    /// is the user's choice. The engine doesn't tell a link that a script follows from one that is clicked.
    void NoteUserAction();

    /// Runs a script that the page can neither see nor disturb.
    void RunApart(const QString& script, const std::function<void(const QVariant&)>& answer = {});

    /// What a script of `RunApart` writes to the console after this mark is raised as `Said`. The page doesn't know it.
    [[nodiscard]] const QString& Mark() const { return mark_; }

  Q_SIGNALS:
    /// What `Go` leads to has taken the place of what was here, and none of its own scripts has run yet. The engine
    /// tells the new address earlier, while scripts would still run in the old page.
    void Arrived();
    /// The user wants to go to another document.
    void LinkChosen(const QUrl& address);
    void Said(const QString& words);

  protected:
    bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool isMainFrame) override;
    QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override { return {}; }
    QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
    void javaScriptAlert(const QUrl&, const QString&) override {}
    bool javaScriptConfirm(const QUrl&, const QString&) override;
    bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override { return false; }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int line,
                                  const QString& source) override;

  private:
    void TellOfArrivals();
    void Hear(const QString& words);
    [[nodiscard]] bool TakeUserAction();
    void Choose(const QUrl& address);
    void RefuseRequests();

    QString mark_;
    QUrl address_;
    bool isLeaving_ = false;
    bool hasStrayed_ = false;
    QElapsedTimer userAction_;
};

}  // namespace tintora
