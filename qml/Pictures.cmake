# Pictures of the user interface, made by tools/render-images.py. Each exists at 1x, 2x and 3x.
set(picture_names
  VORNBar_360x45
  VORN_big
  arrow_down
  arrow_left
  arrow_right
  arrow_up
  background_1_437x576
  background_2_437x576
  byod_gray
  byod_green
  cam_27x17
  camera_control
  close
  close_30x120
  error_42x42
  glow_173x172
  magnifier
  magnifier_minus
  magnifier_plus
  meetings
  mic_16x25
  minimize_30x120
  oobe_complete_95x66
  oobe_error_74x74
  select_image_24x20
  settings_16x14
  spk_27x21
  typec_plug_444x100
  update
  user_84x84
  volume_green
  volume_white
  vorn_141x140
  vorn_logo_105x32
  vorn_logo_84x26
  warning
  zoom_gray
  zoom_green
)
set(pictures images/VORNApp.ico)
foreach(name IN LISTS picture_names)
  list(APPEND pictures "images/${name}.png" "images/${name}@2x.png" "images/${name}@3x.png")
endforeach()
