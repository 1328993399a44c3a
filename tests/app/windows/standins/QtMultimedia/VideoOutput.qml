import QtQuick

Item {
    enum FillMode { Stretch, PreserveAspectFit, PreserveAspectCrop }

    property int fillMode: VideoOutput.PreserveAspectFit
    property rect contentRect: Qt.rect(0, 0, width, height)
    property rect sourceRect
    property QtObject videoSink: QtObject {}
}
