#pragma once

#include <QTimer>
#include <QWebEngineView>
#include <chrono>

namespace tintora {

class PreviewPage;

/// How long a page may take.
struct PagePatience {
    /// A page that hasn't answered for so long counts as stuck.
    std::chrono::milliseconds answer{3000};
    /// A page that still waits for parts of it, say a picture from the web, counts as loaded after so long.
    std::chrono::milliseconds load{1000};
};

/// One of the two faces of a `PageView`: a browser that loads a page while the other is seen. It knows how far its page
/// is, and whether it still answers.
class PageFace : public QWebEngineView {
    Q_OBJECT

  public:
    PageFace(QWebEngineProfile& profile, PagePatience patience, QWidget* parent);
    ~PageFace() override;

    /// Loads a page in place of what is here. It gets the zoom of the face that is seen, and will stand where that
    /// one stands when it is ready. `LoadReady` or `LoadFailed` follows once, unless another call comes first.
    void Load(const QString& path, const PageFace& seen);

    /// Lets go of the page, so that it costs nothing and its scripts end.
    void Leave();

    /// Ends the page's process, and with it the page.
    void Kill();

    /// Asks the page for a sign of life. Three questions in a row without an answer are the time that the patience
    /// allows: `AskingInterval` apart. What is stuck and nobody sees is killed; else `IsStuck` holds until an answer.
    void AskForLife();
    [[nodiscard]] std::chrono::milliseconds AskingInterval() const;

    [[nodiscard]] QString Path() const { return path_; }
    [[nodiscard]] bool IsLoading() const { return stage_ == Stage::Loading; }
    [[nodiscard]] bool IsDead() const { return stage_ == Stage::Dead; }
    [[nodiscard]] bool IsStuck() const { return missedAnswers_ >= MissedAnswers; }

    /// Whether the keyboard can come here: not while the other face lies over this one.
    void SetReachable(bool isReachable);

    /// Where the page stands, in pixels of its style sheet.
    [[nodiscard]] QPointF Place() const;

    [[nodiscard]] PreviewPage& Page() const { return *page_; }

  Q_SIGNALS:
    /// The page is loaded, stands where it should, and is painted.
    void LoadReady();
    /// There is no such page, it can't be read, it isn't one, or its process has ended.
    void LoadFailed();
    /// The process of a page that had been loaded has ended.
    void Died();
    /// `IsStuck` has changed.
    void LifeChanged();
    void ReloadWanted();

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    enum class Stage { Empty, Leaving, Loading, Loaded, Dead };
    static constexpr int MissedAnswers = 3;

    void Head(const QUrl& address);
    void GoOn();
    void Fail();
    void Follow(const QWebEngineLoadingInfo& info);
    void NoteArrival();
    void End(bool isWhole);
    void AwaitPicture();
    void Hear(const QString& words);
    void TakePicture();
    void NotePicture();
    void DoWithoutPicture();
    void NoteEnd();
    void NoteMissedAnswers();
    void ForgetQuestions();

    PagePatience patience_;
    PreviewPage* page_;
    QTimer loadPatience_;
    QTimer picturePatience_;
    Stage stage_ = Stage::Empty;
    QString path_;
    QUrl address_;
    const PageFace* seen_ = nullptr;
    /// Counts the loads, so that what comes late from an earlier one isn't taken for this one's.
    int load_ = 0;
    int tries_ = 0;
    /// Whether `address_` waits for an earlier load to end.
    bool isBound_ = false;
    /// Whether the last load that was asked for goes on, and whether the engine has begun it.
    bool isUnderway_ = false;
    bool hasStarted_ = false;
    bool hasArrived_ = false;
    bool isPictureAwaited_ = false;
    bool isReachable_ = false;
    /// Counts the questions, for the same reason; 0 answers are missing if the last one was answered.
    int question_ = 0;
    bool isAnswerOut_ = false;
    int missedAnswers_ = 0;
};

}  // namespace tintora
