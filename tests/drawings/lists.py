"""The multilines and styles of a drawing as ezdxf reads them.

The shape is that of `orvex-batch list --json`, as far as this reader knows the
values: a colour is given by its index only. Multilines come in the order of
their handles' records in the file, blocks first, since that is how they are
read; compare them by handle. A drawing that names no version is old to this
reader, which then gives multilines without vertices.
"""

import ezdxf
from ezdxf import recover


def load(path):
    """The drawing as it is, or as far as it can be recovered."""
    try:
        return ezdxf.readfile(path)
    except (ezdxf.DXFError, ValueError):
        return recover.readfile(path)[0]


def block_name(doc, entity):
    record = doc.entitydb.get(entity.dxf.owner)
    return record.dxf.name if record is not None and record.dxftype() == "BLOCK_RECORD" else None


def multiline(doc, entity):
    style = entity.style
    return {
        "handle": entity.dxf.handle,
        "block": block_name(doc, entity),
        "layer": entity.dxf.layer,
        "style": style.dxf.name if style is not None else entity.dxf.style_name,
        "scale": entity.dxf.scale_factor,
        "justification": entity.dxf.justification,
        "flags": entity.dxf.flags,
        "normal": list(entity.dxf.extrusion),
        "vertices": [
            {
                "position": list(vertex.location),
                "axis": list(vertex.line_direction),
                "miter": list(vertex.miter_direction),
                "elements": [
                    {"line": list(line), "area": list(area)}
                    for line, area in zip(vertex.line_params, vertex.fill_params)
                ],
            }
            for vertex in entity.vertices
        ],
    }


def style(record):
    return {
        "handle": record.dxf.handle,
        "name": record.dxf.name,
        "description": record.dxf.description,
        "flags": record.dxf.flags,
        "startAngle": record.dxf.start_angle,
        "endAngle": record.dxf.end_angle,
        "fill": {"index": record.dxf.fill_color},
        "elements": [
            {"offset": element.offset, "color": {"index": element.color}, "linetype": element.linetype}
            for element in record.elements
        ],
    }


def lists(doc):
    entities = [entity for entity in doc.entitydb.values() if entity.dxftype() == "MLINE"]
    return {
        "multilines": [multiline(doc, entity) for entity in entities],
        "styles": [style(record) for _, record in doc.mline_styles],
    }
