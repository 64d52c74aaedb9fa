#pragma once

#include <QDialog>

class QCheckBox;
class QSpinBox;

namespace tolvik::viewer {

/// Asks how large a picture of the view is to be, and whether it has a background.
class PictureDialog : public QDialog
{
    Q_OBJECT

public:
    /// \param size what is proposed, in pixels
    explicit PictureDialog(const QSize& size, QWidget* parent = nullptr);
    ~PictureDialog() override;

    QSize pictureSize() const;
    bool isClear() const;

private:
    QSpinBox* width;
    QSpinBox* height;
    QCheckBox* clear;
};

} // namespace tolvik::viewer
