import QtQuick
import "../controls"

// Form to sign in.
LoginForm {
    id: form

    readonly property string email: emailField.text
    readonly property string password: passwordField.text

    signal accepted
    signal forgotPassword

    function reset(): void {
        emailField.reset();
        passwordField.reset();
    }

    function submit(): void {
        emailField.checkInputComplete();
        passwordField.checkInputComplete();
        if (emailField.valid && passwordField.valid)
            form.accepted();
    }

    title: qsTr("Sign In")
    subline: qsTr("Don’t have an account?")
    linkText: qsTr("Create an account")
    submitText: qsTr("Sign In")
    submitY: 335
    responseWidth: width - forgotLink.width - 15 - 8

    Column {
        id: fields

        y: 193
        spacing: 25

        QuickTextField {
            id: emailField

            objectName: "email"
            placeholderText: qsTr("Email")
            allowedChars: regexEmail
            errorMessage: qsTr("The format is incorrect")
            nextFocusItem: passwordField
        }

        QuickTextField {
            id: passwordField

            objectName: "password"
            placeholderText: qsTr("Password")
            maximumLength: 32
            enablePasswordMode: true
            Component.onCompleted: onEnterAction = () => form.submitted()
        }
    }

    TextLink {
        id: forgotLink

        anchors.right: parent.right
        anchors.top: fields.bottom
        anchors.topMargin: 10
        text: qsTr("Forgot Password?")
        textColor: Theme.placeholderGrey
        onClicked: form.forgotPassword()
    }
}
