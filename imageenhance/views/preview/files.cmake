list(APPEND STUDIO_QML
  views/preview/BusyCover.qml
  views/preview/FlickableImage.qml
  views/preview/ImageNavigator.qml
  views/preview/ImagePreview.qml
  views/preview/ImagePreviewState.qml
  views/preview/ImageZoomControl.qml
  views/preview/PanningLink.qml
  views/preview/PictureGlide.qml
  views/preview/PicturePair.qml
  views/preview/PreviewControls.qml
  views/preview/PreviewInput.qml
  views/preview/PreviewPointer.qml
  views/preview/PreviewSource.qml
  views/preview/SingleImageView.qml
  views/preview/ZoomList.qml
)
