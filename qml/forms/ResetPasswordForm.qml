import QtQuick
import "../controls"

// Form to request an e-mail with a password reset link.
LoginForm {
    id: form

    readonly property string email: emailField.text

    signal accepted

    function reset(): void {
        emailField.reset();
    }

    function focusFirstField(): void {
        emailField.forceActiveFocus();
    }

    function submit(): void {
        emailField.checkInputComplete();
        if (emailField.valid)
            form.accepted();
    }

    errorBelowFields: emailField.showError
    title: qsTr("Password Reset")
    subline: qsTr("Enter your email below and we'll send you a link to \nreset your password.")
    //: Button that asks for the link.
    submitText: qsTr("Send")
    submitY: 280

    QuickTextField {
        id: emailField

        objectName: "email"
        y: 202
        placeholderText: qsTr("Email")
        allowedChars: regexEmail
        errorMessage: qsTr("Email is required")
        Component.onCompleted: onEnterAction = () => form.submitted()
    }
}
