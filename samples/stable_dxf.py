"""Write a drawing with ezdxf so that the same drawing gives the same bytes."""

import io

import ezdxf

# Before any drawing is made: a new one notes its time of birth.
ezdxf.options.write_fixed_meta_data_for_testing = True


def drawing_text(doc):
    # ezdxf adds the classes it requires from a set, in an order that changes from run to run.
    doc.classes.add_required_classes(doc.dxfversion)
    ordered = sorted(doc.classes.classes.items(), key=lambda item: str(item[0]))
    doc.classes.classes.clear()
    doc.classes.classes.update(ordered)
    stream = io.StringIO()
    doc.write(stream)
    return stream.getvalue()
