import QtQml

QtObject {
    enum FileMode { OpenFile, OpenFiles, SaveFile }

    property string title
    property var nameFilters: []
    property int fileMode: FileDialog.OpenFile
    property url currentFolder
    property url selectedFile

    signal accepted
    signal rejected

    function open(): void {}
    function close(): void {}
}
