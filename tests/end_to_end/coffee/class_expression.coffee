Widget = class extends Base.Part
  draw: (canvas) =>
    super canvas
    canvas.fill @
make = (Parent) -> class then mixed: true
